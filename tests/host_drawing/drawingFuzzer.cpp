// Opens arbitrary bytes: what opens is saved as it came; everything in it can be looked at and
// edited; what is saved then opens again, has the edits, and goes back to the first bytes.

#include "BlockList.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "DrawingFile.h"
#include "KdDbDictionary.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "MlineContent.h"
#include "ObjectTable.h"
#include "RandomEdits.h"
#include "WellKnownObjects.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace orvex;
using namespace orvex::testing;

void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "not so: %s\n", what);
        std::abort();
    }
}

std::unique_ptr<DrawingFile> open(std::string bytes) {
    auto opened = DrawingFile::openBytes(std::move(bytes));
    return opened ? std::move(*opened) : nullptr;
}

void lookAtAll(DatabaseCore& core) {
    for (std::size_t i = 0; i < core.objects().stubs().size(); ++i) {
        KdDbStub& stub = core.objects().stubs()[i];
        core.load(stub);
        if (stub.kind == ObjectKind::entity) {
            static_cast<void>(core.objects().source()->shapeOf(stub));
        }
    }
}

void editAll(DrawingFile& file) {
    DatabaseCore& core = file.database().core();
    Chance chance(core.objects().stubs().size());
    RandomEdits edits(file, chance);
    for (int i = 0; i < 12; ++i) {
        edits.edit();
    }
    core.setVariable("CMLSCALE", 4.25);
    auto style = std::make_unique<KdDbMlineStyle>();
    style->initMlineStyle();
    style->setName(L"fuzzed");
    if (auto* const styles =
            dynamic_cast<KdDbDictionary*>(core.open(*core.wellKnown().styleDictionary, true))) {
        KdDbObjectId id;
        styles->setAt(L"fuzzed", style.release(), id);
    }
    auto mline = std::make_unique<KdDbMline>();
    mline->setStyle(KdDbObjectId(core.wellKnown().findStyle(L"STANDARD")));
    mline->appendSeg({});
    mline->appendSeg({4.0, 0.0, 0.0});
    BlockEntities& model = core.blocks().modelSpace();
    core.blocks().appendEntity(model,
                               core.adopt(std::move(mline), ObjectKind::mline, model.record));
}

std::ptrdiff_t countEntities(DatabaseCore& core) {
    return std::ranges::count(core.blocks().modelSpace().entities, false, &KdDbStub::erased);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto file = open(bytes);
    if (file == nullptr) {
        return 0;
    }
    require(file->bytes() == bytes, "what opens is saved as it came");
    DatabaseCore& core = file->database().core();
    lookAtAll(core);
    require(file->bytes() == bytes, "looking changes nothing");

    core.changes().beginCommand();
    editAll(*file);
    core.changes().endCommand();
    const std::ptrdiff_t entities = countEntities(core);
    const std::string edited = file->bytes();
    require(file->bytes() == edited, "a second save gives the same");
    const auto again = open(edited);
    require(again != nullptr, "what is saved opens");
    lookAtAll(again->database().core());
    require(again->bytes() == edited, "what was saved is saved as it came");
    require(countEntities(again->database().core()) == entities, "nothing is lost");
    require(again->database().core().wellKnown().findStyle(L"fuzzed") != nullptr,
            "the new style is there");

    core.changes().undo();
    require(file->bytes() == bytes, "taken back, it is as it came");
    return 0;
}
