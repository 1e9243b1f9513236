#pragma once

#include "DrawingText.h"
#include "HeaderVariables.h"
#include "MlineParser.h"
#include "ObjectSource.h"
#include "RecordContext.h"
#include "RecordTable.h"
#include "byteOrderMark.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvex {

struct BlockEntities;

// The first version with multilines.
constexpr std::string_view kOldestVersion = "AC1012";

// A run of records, from the one that opens it to the one that closes it.
struct RecordRun {
    std::string name; // of the section, or the kind of the table
    std::uint32_t begin = 0;
    std::uint32_t end = 0;    // the record after the last one inside
    bool closed = false;      // `end` is its ENDSEC, ENDTAB or ENDBLK
    int entries = 0;          // of a table
    KdDbStub* stub = nullptr; // of a table
    BlockEntities* block = nullptr;
};

// The records of OBJECTS that may name entities, and all of them by handle.
struct ObjectRecords {
    std::vector<std::uint32_t> groups;
    std::vector<std::uint32_t> sortTables;
    std::unordered_map<std::uint64_t, std::uint32_t> byHandle;
};

// The file's bytes, cut into records, with what they stand for. Made once by DrawingReader; never
// changed by an edit, so that what is saved always starts from the bytes that were opened.
class DrawingDocument final : public ObjectSource {
public:
    explicit DrawingDocument(std::string fileBytes) : bytes(std::move(fileBytes)) {}

    std::string bytes;
    CutDrawing cut;
    DrawingText text;
    std::string version; // empty when the file doesn't say it
    std::vector<RecordRun> sections;
    std::vector<RecordRun> tables;
    std::vector<RecordRun> blocks; // as they stand in BLOCKS

    std::vector<KdDbStub*> layers;
    std::vector<KdDbStub*> linetypes;
    std::vector<KdDbStub*> blockRecords;
    std::unordered_map<std::uint64_t, KdDbStub*> objects; // styles and what dictionaries name
    // The dictionaries as they were before any edit, and what every drawing has and this file
    // lacks, as it was made in memory; null for what has no content.
    std::unordered_map<const KdDbStub*, std::shared_ptr<const ObjectContent>> untouched;
    HeaderVariables variables; // as the file has them

    [[nodiscard]] RecordSpan span(std::uint32_t record) const {
        return {cut.records.begin(record), cut.records.end(record)};
    }
    [[nodiscard]] RecordContext context(DatabaseCore& core) const {
        return {bytes, text, core, !version.empty() && version < kOldestVersion};
    }
    [[nodiscard]] const RecordRun* findSection(std::string_view name) const; // the first one
    [[nodiscard]] const RecordRun* findLastSection(std::string_view name) const;
    [[nodiscard]] const RecordRun* findTable(std::string_view kind) const;
    [[nodiscard]] KdDbStub* findObject(std::uint64_t handle) const;

    // Found at the first question.
    [[nodiscard]] const ObjectRecords& objectRecords() const;

    [[nodiscard]] std::unique_ptr<KdDbObject> load(const KdDbStub& stub) override;
    [[nodiscard]] EntityShape shapeOf(const KdDbStub& stub) const override;
    [[nodiscard]] std::optional<KdDbObjectId> styleOf(const KdDbStub& stub) const override;

private:
    [[nodiscard]] std::unique_ptr<KdDbObject> loadDictionary(const RecordContext& context,
                                                             const RecordSpan& span) const;
    // Of the named styles; looked up at the first question, when all objects are known.
    mutable std::vector<KdDbObjectId> m_namedStyles;
    mutable std::optional<ObjectRecords> m_objectRecords;
    MlineParser m_parser; // lends its memory to one multiline after the other
};

} // namespace orvex
