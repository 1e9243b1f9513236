#pragma once

#include "Failure.h"
#include "KdGePoint3d.h"
#include "KdGeVector3d.h"
#include "MlineContent.h"
#include "TagReader.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace orvex {

// What a tag of a multiline's record is for.
enum class MlineRole : std::uint8_t {
    extra,     // the common part of entities, comments, data of others
    field,     // of the multiline as a whole
    vertex,    // a coordinate of position, axis or miter
    lineCount, // how many line values follow
    line,
    areaCount,
    area,
};

// Takes a multiline's record tag by tag and judges it without ever trusting a count: a value is
// kept when it is there. One parser serves any number of records and keeps its memory.
class MlineParser {
public:
    enum class Keeps : std::uint8_t { everything, fieldsOnly };

    // Where the fields are all that is wanted, vertices and lists are judged alike, but their
    // numbers aren't worked out.
    explicit MlineParser(Keeps keeps = Keeps::everything)
        : m_keepsVertices(keeps == Keeps::everything) {}

    // The record has at most so many bytes: room for no more is taken at once, whatever the counts
    // say.
    void begin(std::size_t recordBytes = 0);
    MlineRole feed(const Tag& tag); // every tag after the record's code 0
    // Fails where something doesn't fit together; the result is then of no use.
    [[nodiscard]] std::optional<Failure> finish();

    // ---- the result; views point into the tags ------------------------------------------------
    std::string_view styleName;
    std::uint64_t style = 0; // handle
    double scale = 1.0;
    int justification = 0;
    int flags = 0;
    int vertexCount = 0;
    int elementCount = 0;
    KdGeVector3d normal;
    std::vector<ChainVertex> vertices;
    std::vector<std::uint32_t> counts; // of line and area values in turn, per vertex and element
    std::vector<double> values;        // in the order of the counts

private:
    enum class Stage : std::uint8_t { fields, coordinates, lines, areas, done };

    MlineRole feedField(const Tag& tag);
    MlineRole feedVertex(const Tag& tag);
    MlineRole feedCoordinate(const Tag& tag, unsigned place);
    MlineRole feedCount(const Tag& tag, bool areas);
    MlineRole feedValue(const Tag& tag, bool areas);
    void readReal(const Tag& tag, double& value);
    void judgeReal(const Tag& tag);
    void readCount(const Tag& tag, int& value);
    [[nodiscard]] bool vertexIsComplete() const;
    void fail(const char* reason) {
        if (m_error == nullptr) {
            m_error = reason;
        }
    }

    void takeRoom();

    bool m_keepsVertices;
    std::size_t m_recordBytes = 0;
    std::size_t m_vertexCount = 0; // so far
    Stage m_stage = Stage::fields;
    bool m_inGroup = false;         // between the braces of code 102
    std::uint32_t m_seen = 0;       // fields that came, a bit each
    unsigned m_nextPlace = 0;       // of the coordinates of a vertex
    int m_elementsLeft = 0;         // of the vertex at hand
    std::uint32_t m_valuesLeft = 0; // of the list at hand
    const char* m_error = nullptr;
};

} // namespace orvex
