#include "FileLayout.h"

#include "BlockList.h"
#include "CStdStr.h"
#include "TableRecords.h"

#include <algorithm>

namespace orvex {

FileLayout::FileLayout(const DrawingDocument& document)
    : m_document(document), m_end(document.cut.records.size() - (document.cut.hasEnd ? 1 : 0)) {}

// ---- places -------------------------------------------------------------------------------------

TagFormat FileLayout::formatAt(std::uint32_t record) const {
    const RecordTable& records = m_document.cut.records;
    if (records.size() == 0) {
        return {};
    }
    return TagFormat::of(m_document.bytes, records.begin(std::min(record, records.size() - 1)));
}

TagFormat FileLayout::formatOf(std::string_view section) const {
    const RecordRun* const run = m_document.findSection(section);
    return formatAt(run != nullptr ? run->end : m_end);
}

TagFormat FileLayout::formatOfBlock(const BlockEntities& block) const {
    const RecordRun* const run = runOf(block);
    return run != nullptr ? formatAt(run->end) : formatOf("ENTITIES");
}

bool FileLayout::isActivePaperSpace(const BlockEntities& block) const {
    return StrCmpI(block.name.c_str(), L"*Paper_Space") == 0;
}

// Null for the blocks whose entities don't stand in BLOCKS.
const RecordRun* FileLayout::runOf(const BlockEntities& block) const {
    if (isActivePaperSpace(block) || StrCmpI(block.name.c_str(), L"*Model_Space") == 0) {
        return nullptr;
    }
    const auto found = std::ranges::find(m_document.blocks, &block, &RecordRun::block);
    return found != m_document.blocks.end() ? &*found : nullptr;
}

std::uint32_t FileLayout::before(std::initializer_list<std::string_view> sections) const {
    std::uint32_t first = m_end;
    for (const std::string_view name : sections) {
        if (const RecordRun* const run = m_document.findSection(name)) {
            first = std::min(first, run->begin);
        }
    }
    return first;
}

std::uint32_t FileLayout::recordAfterEntities() const {
    const RecordRun* const run = m_document.findSection("ENTITIES");
    if (run == nullptr) {
        return m_end;
    }
    return run->closed ? run->end + 1 : run->end;
}

// ---- what is to be written ----------------------------------------------------------------------

void FileLayout::replace(const RecordSpan& span, std::string text) {
    m_edits.push_back({span.begin, span.end - span.begin, std::move(text)});
}

void FileLayout::addEntity(const BlockEntities& block, std::string_view text) {
    const RecordRun* const run = runOf(block);
    (run != nullptr ? m_blockEntities[run] : m_entities) += text;
}

void FileLayout::addObjects(std::string root, std::string others) {
    m_root = std::move(root);
    m_objects = std::move(others);
}

void FileLayout::addTableEntries(const RecordContext& context, std::string_view kind,
                                 const KdDbStub& table, const std::string& text, int added,
                                 int change) {
    const RecordRun* const run = m_document.findTable(kind);
    if (run == nullptr) {
        TagText fresh(formatOf("TABLES"));
        writeTable(fresh, context, kind, table.handle, added, text);
        m_tables += fresh.text();
        return;
    }
    const RecordSpan head = m_document.span(run->begin);
    if (auto counted = editTableCount(m_document.bytes, head, run->entries, change)) {
        replace(head, std::move(*counted));
    }
    insert(run->end, text);
}

void FileLayout::setVariables(const RecordContext& context, const VariableChanges& changes) {
    if (const RecordRun* const run = m_document.findSection("HEADER")) {
        const RecordSpan span = m_document.span(run->begin);
        replace(span, editVariables(context, span, changes));
        return;
    }
    TagText text(formatAt(0));
    writeVariables(text, context.text, changes);
    m_header = text.take();
}

// ---- edits --------------------------------------------------------------------------------------

void FileLayout::insert(std::uint32_t record, std::string text) {
    if (!text.empty()) {
        m_edits.push_back({m_document.cut.records.begin(record), 0, std::move(text)});
    }
}

void FileLayout::closeOpen(TagText& text, std::uint32_t record) {
    const auto endsOpen = [record](const RecordRun& run) {
        return !run.closed && run.end == record;
    };
    const auto open = std::ranges::find_if(m_document.sections, endsOpen);
    if (open == m_document.sections.end() || &*open == m_closed) {
        return;
    }
    m_closed = &*open;
    if (!m_document.tables.empty() && open->name == "TABLES" &&
        endsOpen(m_document.tables.back())) {
        text.add(0, "ENDTAB");
    }
    if (!m_document.blocks.empty() && open->name == "BLOCKS" &&
        endsOpen(m_document.blocks.back())) {
        text.add(0, "ENDBLK");
    }
    text.add(0, "ENDSEC");
}

void FileLayout::insertSection(std::uint32_t record, std::string_view name,
                               std::string_view content) {
    TagText text(formatAt(record));
    closeOpen(text, record);
    text.add(0, "SECTION");
    text.add(2, name);
    text.addLines(content);
    text.add(0, "ENDSEC");
    insert(record, text.take());
    m_appended = m_appended || record == m_end;
}

void FileLayout::fillSection(std::string_view name, std::uint32_t newPlace,
                             const std::string& content) {
    if (content.empty()) {
        return;
    }
    // Behind all that the file has: entities are drawn in its order.
    if (const RecordRun* const run = m_document.findLastSection(name)) {
        insert(run->end, content);
    } else {
        insertSection(newPlace, name, content);
    }
}

std::vector<FileEdit> FileLayout::takeEdits() {
    for (auto& [run, text] : m_blockEntities) {
        insert(run->end, std::move(text));
    }
    if (!m_header.empty()) {
        insertSection(0, "HEADER", m_header);
    }
    fillSection("TABLES", before({"BLOCKS", "ENTITIES", "OBJECTS"}), m_tables);
    fillSection("BLOCKS", before({"ENTITIES", "OBJECTS"}), m_newBlocks);
    fillSection("ENTITIES", before({"OBJECTS"}), m_entities);
    if (const RecordRun* const objects = m_document.findSection("OBJECTS")) {
        insert(objects->begin + 1, m_root);
        insert(objects->end, m_objects);
    } else {
        fillSection("OBJECTS", recordAfterEntities(), m_root + m_objects);
    }
    if (m_appended && !m_document.cut.hasEnd) {
        TagText text(formatAt(m_end));
        text.add(0, "EOF");
        insert(m_end, text.take());
    }
    // What is put in before a record goes before that record's own change.
    std::ranges::stable_sort(m_edits, [](const FileEdit& a, const FileEdit& b) {
        return a.offset != b.offset ? a.offset < b.offset : a.length == 0 && b.length != 0;
    });
    const auto again =
        std::unique(m_edits.begin(), m_edits.end(), [](const FileEdit& a, const FileEdit& b) {
            return a.offset == b.offset && a.length != 0 && b.length != 0;
        });
    m_edits.erase(again, m_edits.end());
    return std::move(m_edits);
}

} // namespace orvex
