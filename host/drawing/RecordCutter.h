#pragma once

#include "MlineParser.h"
#include "RecordTable.h"

#include <unordered_map>

namespace orvex {

// Cuts a run of bytes, which begins with a record, and checks the multilines on the way. Stops at
// EOF.
class RecordCutter {
public:
    RecordCutter(std::string_view bytes, std::size_t begin, std::size_t end, CutDrawing& result)
        : m_begin(begin), m_size(end - begin), m_reader(bytes, begin, end), m_result(result) {}

    std::optional<Failure> run(const Progress& progress);

private:
    [[nodiscard]] std::size_t line() const { return 2 * m_reader.tagCount() + 1; }
    void startRecord(const Tag& tag);
    void endRecord();
    void take(const Tag& tag);
    void noteStyle(Record& record);

    std::size_t m_begin;
    std::size_t m_size; // of what is cut
    TagReader m_reader;
    CutDrawing& m_result;
    MlineParser m_mline{MlineParser::Keeps::fieldsOnly}; // numbers are read once asked for
    RecordKind m_kind = RecordKind::other;               // of the record at hand
    bool m_hasHandle = false;
    std::size_t m_recordLine = 0;
    std::unordered_map<std::uint64_t, std::uint32_t> m_places; // of named styles by handle
    std::uint32_t m_lastPlace = 0; // of the style that the multiline before names
};

} // namespace orvex
