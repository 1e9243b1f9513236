#pragma once

#include "DrawingDocument.h"
#include "DrawingWriter.h"
#include "HeaderRecord.h"
#include "TagText.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvex {

// Knows where in the file new records belong, and makes the tables and sections that aren't there.
// A place that a damaged file leaves open is closed when something has to stand after it.
class FileLayout {
public:
    explicit FileLayout(const DrawingDocument& document);

    // How new records in a section look; like any other record's where there is no such section.
    [[nodiscard]] TagFormat formatOf(std::string_view section) const;
    [[nodiscard]] TagFormat formatOfBlock(const BlockEntities& block) const;
    // The paper space whose entities stand among those of model space.
    [[nodiscard]] bool isActivePaperSpace(const BlockEntities& block) const;

    // Of several texts for one record the first counts: what leaves with its owner doesn't come
    // back for what it named.
    void replace(const RecordSpan& span, std::string text);
    void addEntity(const BlockEntities& block, std::string_view text);
    void addBlocks(std::string text) { m_newBlocks = std::move(text); }
    // The root dictionary comes first.
    void addObjects(std::string root, std::string others);
    // `change` is by how many entries the table's count differs.
    void addTableEntries(const RecordContext& context, std::string_view kind, const KdDbStub& table,
                         const std::string& text, int added, int change);
    void setVariables(const RecordContext& context, const VariableChanges& changes);

    // In the order of the file.
    [[nodiscard]] std::vector<FileEdit> takeEdits();

private:
    void insert(std::uint32_t record, std::string text);
    void insertSection(std::uint32_t record, std::string_view name, std::string_view content);
    // Puts content at the end of a section, which is made where there is none.
    void fillSection(std::string_view name, std::uint32_t newPlace, const std::string& content);
    void closeOpen(TagText& text, std::uint32_t record);
    [[nodiscard]] std::uint32_t recordAfterEntities() const;
    [[nodiscard]] TagFormat formatAt(std::uint32_t record) const;
    [[nodiscard]] const RecordRun* runOf(const BlockEntities& block) const;
    // Where the first of these sections begins, or the end of the drawing.
    [[nodiscard]] std::uint32_t before(std::initializer_list<std::string_view> sections) const;

    const DrawingDocument& m_document;
    std::uint32_t m_end; // the EOF record, or after the last one
    // What is going to be put in, by its place.
    std::string m_header;
    std::string m_tables;
    std::string m_newBlocks;
    std::string m_entities; // of model and paper space
    std::string m_objects;
    std::string m_root;
    std::unordered_map<const RecordRun*, std::string> m_blockEntities;

    const RecordRun* m_closed = nullptr; // the section that the file leaves open, once it is closed
    bool m_appended = false;             // a section was put after all others
    std::vector<FileEdit> m_edits;
};

} // namespace orvex
