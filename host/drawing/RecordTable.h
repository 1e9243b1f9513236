#pragma once

#include "DrawingFile.h"
#include "RecordKind.h"
#include "TagReader.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace orvex {

// Everything from one code 0 up to the next.
struct Record {
    std::uint64_t offset = 0; // of the line with the code 0
    std::uint64_t handle = 0; // 0 for none
    RecordKind kind = RecordKind::other;
    bool inPaperSpace = false;
    bool opaque = false; // contradicts what its kind claims
    // Of a multiline that names its style by handle: place among the drawing's named styles, from
    // 1.
    std::uint32_t namedStyle = 0;
};
static_assert(sizeof(Record) == 24); // there is one for every object of the drawing

// A style that multilines name by handle.
struct NamedStyle {
    std::uint64_t handle = 0;
    std::size_t line = 0; // where the first such record starts
};

// How the lines of a file end.
struct LineEnds {
    std::size_t lineFeeds = 0; // all of them, those after a carriage return included
    std::size_t carriageReturns = 0;
};

// The drawing as a flat list of records in the order of the file.
class RecordTable {
public:
    [[nodiscard]] std::uint32_t size() const {
        return static_cast<std::uint32_t>(m_records.empty() ? 0 : m_records.size() - 1);
    }
    // The last index is one that marks the end of what was read.
    [[nodiscard]] const Record& operator[](std::uint32_t index) const { return m_records[index]; }
    [[nodiscard]] Record& operator[](std::uint32_t index) { return m_records[index]; }

    [[nodiscard]] std::size_t begin(std::uint32_t index) const {
        return static_cast<std::size_t>(m_records[index].offset);
    }
    [[nodiscard]] std::size_t end(std::uint32_t index) const { return begin(index + 1); }

    // Where entities' followers end: the first record from `index` on that is part of no entity.
    [[nodiscard]] std::uint32_t skipParts(std::uint32_t index) const;

private:
    friend class RecordCutter;
    friend struct CutDrawing;
    void append(const RecordTable& other, const std::vector<std::uint32_t>& stylePlaces);

    std::vector<Record> m_records; // and one after the last for the end
};

// What is known of a file once it is cut.
struct CutDrawing {
    RecordTable records;
    LineEnds lineEnds;
    std::size_t lineCount = 0;
    std::uint64_t highestHandle = 0;
    std::vector<NamedStyle> namedStyles; // each once, in the order of the file
    std::vector<DrawingWarning> warnings;
    bool hasEnd = false; // an EOF record

    // Takes what follows in the file, with lines counted from there.
    void append(CutDrawing&& other);
};

// Cuts `bytes` from `start` on into records and checks the multilines on the way. Stops at EOF.
[[nodiscard]] std::optional<Failure> cutDrawing(std::string_view bytes, std::size_t start,
                                                const Progress& progress, CutDrawing& result);

} // namespace orvex
