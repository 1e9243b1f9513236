#include "DrawingExport.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "FileLayout.h"
#include "GoneReferences.h"
#include "MlineParser.h"
#include "MlineRecord.h"
#include "ObjectTable.h"
#include "PlainRecord.h"
#include "TableRecords.h"
#include "WellKnownObjects.h"
#include "handleText.h"
#include "textCodec.h"

#include <algorithm>
#include <limits>

namespace orvex {

namespace {

constexpr std::wstring_view kUsualVersion = L"AC1015";
constexpr std::uint64_t kLastHandle = std::numeric_limits<std::uint64_t>::max();

// Handles that the file doesn't have, from its seed on.
class FreeHandles {
public:
    FreeHandles(const DrawingDocument& document, DatabaseCore& core) : m_core(&core) {
        const HeaderValue* const value = document.variables.find("HANDSEED");
        const auto* const seed = value != nullptr ? std::get_if<HeaderHandle>(value) : nullptr;
        if (seed != nullptr && seed->value != 0 && seed->value != kLastHandle) {
            m_next = seed->value;
        }
        // Tables that were made in memory have handles, too.
        const std::uint64_t highest = core.objects().highestHandle();
        if (highest < kLastHandle) {
            m_next = std::max(m_next, highest + 1);
        }
    }
    std::uint64_t take() {
        while (m_core->objects().findHandle(m_next) != nullptr) {
            ++m_next;
        }
        return m_next++;
    }
    [[nodiscard]] std::uint64_t seed() const { return m_next; }

private:
    DatabaseCore* m_core;
    std::uint64_t m_next = 1;
};

class DrawingExporter {
public:
    DrawingExporter(const DrawingDocument& document, DatabaseCore& core, const MlineExport& how,
                    std::vector<DrawingWarning>& warnings)
        : m_document(document), m_core(core), m_context(document.context(core)), m_how(how),
          m_layout(document), m_gone(document, core), m_handles(document, core),
          m_warnings(warnings), m_records(m_layout.formatOf("TABLES")),
          m_blocks(m_layout.formatOf("BLOCKS")) {}

    std::vector<FileEdit> run();

private:
    void exportMline(const KdDbStub& mline, const MlineContent& content);
    // `gone` is what they stand for themselves; null where an insert does.
    void addParts(TagText& text, std::vector<PlainContent>& parts, EntityPlace place,
                  const KdDbStub* gone);
    void addInsert(TagText& text, const KdDbStub& mline, const EntityTraits& traits,
                   std::vector<PlainContent>& parts, EntityPlace place);
    std::string addBlock(const KdDbStub& mline, std::vector<PlainContent>& parts);
    [[nodiscard]] std::wstring freeBlockName(const KdDbStub& mline);
    void writeHeader();

    const DrawingDocument& m_document;
    DatabaseCore& m_core;
    RecordContext m_context;
    const MlineExport& m_how;
    FileLayout m_layout;
    GoneReferences m_gone;
    FreeHandles m_handles;
    std::vector<DrawingWarning>& m_warnings;
    TagText m_records; // of blocks
    TagText m_blocks;
    int m_blockCount = 0;
    std::size_t m_exported = 0;
};

std::vector<FileEdit> DrawingExporter::run() {
    KdDbStub* const table = m_core.wellKnown().blockTable;
    const bool needsTable = m_how.form == ExportForm::blocks && !m_context.isOld;
    if (needsTable && table != nullptr) {
        m_core.objects().ensureHandle(*table);
        m_handles = FreeHandles(m_document, m_core);
    }
    MlineParser parser;
    for (const KdDbStub& stub : m_core.objects().stubs()) {
        if (stub.kind != ObjectKind::mline || stub.record == kNoRecord) {
            continue;
        }
        if (const auto content = readMline(m_context, m_document.span(stub.record), parser)) {
            exportMline(stub, *content);
        }
    }
    if (m_blockCount > 0) {
        if (needsTable && table != nullptr) {
            m_layout.addTableEntries(m_context, "BLOCK_RECORD", *table, m_records.text(),
                                     m_blockCount, m_blockCount);
        }
        m_layout.addBlocks(m_blocks.take());
    }
    if (m_exported > 0) {
        writeHeader();
    }
    m_gone.settle(m_layout, m_warnings);
    return m_layout.takeEdits();
}

void DrawingExporter::exportMline(const KdDbStub& mline, const MlineContent& content) {
    Result<std::vector<PlainContent>> parts = m_how.explode(content);
    if (!parts) {
        m_warnings.push_back({0, "multiline #" + handleText(mline.handle) +
                                     " stays as it is: " + parts.failure().text});
        return;
    }
    const BlockEntities& block = *m_core.blocks().blockOf(mline);
    const bool hasOwner = block.record != nullptr && block.record->record != kNoRecord;
    const EntityPlace place{0, hasOwner ? block.record->handle : 0, content.traits->inPaperSpace};
    const RecordSpan span = m_document.span(mline.record);
    TagText text(TagFormat::of(m_document.bytes, span.begin));
    if (m_how.form == ExportForm::lines) {
        addParts(text, *parts, place, &mline);
    } else {
        addInsert(text, mline, *content.traits, *parts, place);
    }
    m_layout.replace(span, text.take());
    m_gone.note(mline.record);
    ++m_exported;
}

void DrawingExporter::addParts(TagText& text, std::vector<PlainContent>& parts, EntityPlace place,
                               const KdDbStub* gone) {
    for (const PlainContent& part : parts) {
        place.handle = m_handles.take();
        writePlain(text, m_context, part, place);
        if (gone != nullptr) {
            m_gone.noteReplacement(gone->handle, place.handle, place.owner);
        }
    }
}

void DrawingExporter::addInsert(TagText& text, const KdDbStub& mline, const EntityTraits& traits,
                                std::vector<PlainContent>& parts, EntityPlace place) {
    const std::string name = addBlock(mline, parts);
    place.handle = m_handles.take();
    m_gone.noteReplacement(mline.handle, place.handle, place.owner);
    writeCommonPart(text, m_context, "INSERT", &traits, place);
    if (!m_context.isOld) {
        text.add(100, "AcDbBlockReference");
    }
    text.add(2, name);
    text.addPoint(10, KdGePoint3d());
}

// In the coordinates of the multiline's own space, so that the insert stands at the origin.
std::string DrawingExporter::addBlock(const KdDbStub& mline, std::vector<PlainContent>& parts) {
    const std::wstring name = freeBlockName(mline);
    std::string encoded = m_context.text.encode(name);
    const KdDbStub* const table = m_core.wellKnown().blockTable;
    std::uint64_t record = 0;
    if (!m_context.isOld && table != nullptr) {
        record = m_handles.take();
        writeBlockRecord(m_records, m_context, encoded, record, table->handle);
    }
    EntityTraits onLayer;
    onLayer.layer = parts.front().traits->layer;
    writeCommonPart(m_blocks, m_context, "BLOCK", &onLayer, {m_handles.take(), record, false});
    if (!m_context.isOld) {
        m_blocks.add(100, "AcDbBlockBegin");
    }
    m_blocks.add(2, encoded);
    m_blocks.add(70, 0);
    m_blocks.addPoint(10, KdGePoint3d());
    m_blocks.add(3, encoded);
    m_blocks.add(1, "");
    // Whether it is seen is said by the insert.
    for (PlainContent& part : parts) {
        EntityTraits traits = *part.traits;
        traits.visible = true;
        part.traits = shareTraits(traits);
    }
    addParts(m_blocks, parts, {0, record, false}, nullptr);
    writeCommonPart(m_blocks, m_context, "ENDBLK", &onLayer, {m_handles.take(), record, false});
    if (!m_context.isOld) {
        m_blocks.add(100, "AcDbBlockEnd");
    }
    ++m_blockCount;
    return encoded;
}

std::wstring DrawingExporter::freeBlockName(const KdDbStub& mline) {
    const std::wstring base = L"ORVEX_" + widen(handleText(mline.handle));
    std::wstring name = base;
    for (int i = 2; m_core.blocks().find(name) != nullptr; ++i) {
        name = base + L'_' + std::to_wstring(i);
    }
    m_core.blocks().add(name);
    return name;
}

void DrawingExporter::writeHeader() {
    VariableChanges changes;
    if (m_document.version.empty()) {
        changes.emplace_back("ACADVER", std::wstring(kUsualVersion));
    }
    changes.emplace_back("HANDSEED", HeaderHandle{m_handles.seed()});
    m_layout.setVariables(m_context, changes);
}

} // namespace

std::vector<FileEdit> exportEdits(const DrawingDocument& document, DatabaseCore& core,
                                  const MlineExport& how, std::vector<DrawingWarning>& warnings) {
    return DrawingExporter(document, core, how, warnings).run();
}

} // namespace orvex
