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
#include "WellKnownObjects.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace orvex;

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

void editMline(KdDbMline& mline) {
    mline.setScale(mline.scale() + 1.0);
    mline.setClosedMline(!mline.closedMline());
    mline.setLayer(L"fuzz\u00FC");
    KdArray<void*> parameters;
    if (mline.numVertices() > 1 &&
        mline.getParametersAt(mline.numVertices() / 2, parameters) == Status::done) {
        VoVector<KdMLSegment> record(*static_cast<VoVector<KdMLSegment>*>(parameters[0]));
        if (!record.isEmpty()) {
            record[0].m_lineParams.append(1e10);
        }
        KdArray<void*> changed;
        changed.append(&record);
        mline.setParametersAt(mline.numVertices() / 2, changed);
    }
    mline.appendSeg({1.0, 2.0, 3.0});
}

void editStyle(KdDbMlineStyle& style) {
    style.setDescription(L"fuzz\n\u4E2D");
    int index = 0;
    KdCmColor color;
    color.setColorIndex(3);
    style.addElement(index, 7.5, color, {}, true);
}

void editAll(DatabaseCore& core) {
    for (std::size_t i = 0; i < core.objects().stubs().size(); ++i) {
        KdDbObject* const object = core.open(core.objects().stubs()[i], true);
        if (auto* const mline = dynamic_cast<KdDbMline*>(object)) {
            editMline(*mline);
        } else if (auto* const style = dynamic_cast<KdDbMlineStyle*>(object)) {
            editStyle(*style);
        }
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

    const std::size_t entities = core.blocks().modelSpace().entities.size();
    core.changes().beginCommand();
    editAll(core);
    core.changes().endCommand();
    const std::string edited = file->bytes();
    require(file->bytes() == edited, "a second save gives the same");
    const auto again = open(edited);
    require(again != nullptr, "what is saved opens");
    lookAtAll(again->database().core());
    require(again->bytes() == edited, "what was saved is saved as it came");
    require(again->database().core().blocks().modelSpace().entities.size() == entities + 1,
            "the new multiline is there, and nothing is lost");
    require(again->database().core().wellKnown().findStyle(L"fuzzed") != nullptr,
            "the new style is there");

    core.changes().undo();
    require(file->bytes() == bytes, "taken back, it is as it came");
    return 0;
}
