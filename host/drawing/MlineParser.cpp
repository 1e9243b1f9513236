#include "MlineParser.h"

#include "NumberText.h"
#include "handleText.h"

#include <algorithm>
#include <array>

namespace orvex {

namespace {

enum Field : std::uint32_t {
    kStyleName = 1U << 0U,
    kStyle = 1U << 1U,
    kScale = 1U << 2U,
    kJustification = 1U << 3U,
    kFlags = 1U << 4U,
    kVertexCount = 1U << 5U,
    kElementCount = 1U << 6U,
    kStart = 1U << 7U,   // three bits
    kNormal = 1U << 10U, // three bits
};

constexpr const char* kNoNumber = "a value is no finite number";

constexpr unsigned kPlaces = 9; // position, axis and miter have three coordinates each
constexpr unsigned kLastNeeded = 7;

// Every third coordinate may be missing; it is 0 then.
constexpr bool isZ(unsigned place) {
    return place % 3 == 2;
}

// The place of codes 11 to 33 among a vertex's coordinates; kPlaces for other codes.
constexpr unsigned placeOf(int code) {
    const int column = code % 10;
    const int row = code / 10;
    return code > 10 && code < 34 && column >= 1 && column <= 3
               ? static_cast<unsigned>((column - 1) * 3 + row - 1)
               : kPlaces;
}

double& coordinate(ChainVertex& vertex, unsigned place) {
    const std::array<double*, kPlaces> all{
        &vertex.position.x, &vertex.position.y, &vertex.position.z, &vertex.axis.x, &vertex.axis.y,
        &vertex.axis.z,     &vertex.miter.x,    &vertex.miter.y,    &vertex.miter.z};
    return *all[place];
}

} // namespace

void MlineParser::begin(std::size_t recordBytes) {
    m_recordBytes = recordBytes;
    styleName = {};
    style = 0;
    scale = 1.0;
    justification = 0;
    flags = 0;
    vertexCount = 0;
    elementCount = 0;
    normal = {0.0, 0.0, 1.0};
    vertices.clear();
    counts.clear();
    values.clear();
    m_vertexCount = 0;
    m_stage = Stage::fields;
    m_inGroup = false;
    m_seen = 0;
    m_nextPlace = 0;
    m_elementsLeft = 0;
    m_valuesLeft = 0;
    m_error = nullptr;
}

MlineRole MlineParser::feed(const Tag& tag) {
    if (tag.code >= 1000) {
        m_stage = m_stage == Stage::fields ? m_stage : Stage::done;
        return MlineRole::extra;
    }
    if (tag.code == 102) {
        m_inGroup = tag.value.starts_with('{');
        return MlineRole::extra;
    }
    if (m_inGroup || tag.code == 999) {
        return MlineRole::extra;
    }
    if (tag.code == 11 && m_stage != Stage::done) {
        return feedVertex(tag);
    }
    return m_stage == Stage::fields ? feedField(tag) : feedVertex(tag);
}

MlineRole MlineParser::feedField(const Tag& tag) {
    std::uint32_t bit = 0;
    switch (tag.code) {
    case 2:
        bit = kStyleName;
        styleName = tag.value;
        break;
    case 340:
        bit = kStyle;
        if (const auto handle = parseHandle(tag.value)) {
            style = *handle;
        } else {
            fail("its style's handle is no handle");
        }
        break;
    case 40:
        bit = kScale;
        readReal(tag, scale);
        break;
    case 70:
        bit = kJustification;
        readCount(tag, justification);
        if (justification > 2) {
            fail("its justification is none of the three");
        }
        break;
    case 71:
        bit = kFlags;
        if (const auto number = parseInteger(tag.value)) {
            flags = *number;
        } else {
            fail("its flags are no number");
        }
        break;
    case 72:
        bit = kVertexCount;
        readCount(tag, vertexCount);
        break;
    case 73:
        bit = kElementCount;
        readCount(tag, elementCount);
        break;
    case 10:
    case 20:
    case 30:
        bit = kStart << static_cast<unsigned>(tag.code / 10 - 1);
        judgeReal(tag); // the first vertex counts
        break;
    case 210:
        bit = kNormal;
        readReal(tag, normal.x);
        break;
    case 220:
        bit = kNormal << 1U;
        readReal(tag, normal.y);
        break;
    case 230:
        bit = kNormal << 2U;
        readReal(tag, normal.z);
        break;
    case 74:
    case 75:
    case 41:
    case 42:
        fail("a list stands before its first vertex");
        return MlineRole::extra;
    default:
        return MlineRole::extra;
    }
    if ((m_seen & bit) != 0) {
        fail("a value is there twice");
    }
    m_seen |= bit;
    return MlineRole::field;
}

MlineRole MlineParser::feedVertex(const Tag& tag) {
    if (m_stage == Stage::done) {
        return MlineRole::extra;
    }
    if (const unsigned place = placeOf(tag.code); place < kPlaces) {
        return feedCoordinate(tag, place);
    }
    switch (tag.code) {
    case 74:
        return feedCount(tag, false);
    case 75:
        return feedCount(tag, true);
    case 41:
        return feedValue(tag, false);
    case 42:
        return feedValue(tag, true);
    case 2:
    case 340:
    case 40:
    case 70:
    case 71:
    case 72:
    case 73:
    case 10:
    case 20:
    case 30:
    case 210:
    case 220:
    case 230:
        fail("a value stands after the vertices that belongs before them");
        return MlineRole::extra;
    default:
        return MlineRole::extra;
    }
}

MlineRole MlineParser::feedCoordinate(const Tag& tag, unsigned place) {
    if (place == 0) {
        if (m_stage != Stage::fields && !vertexIsComplete()) {
            fail("a vertex is not complete");
        }
        if (m_keepsVertices) {
            takeRoom();
            vertices.emplace_back();
        }
        ++m_vertexCount;
        m_stage = Stage::coordinates;
        m_nextPlace = 0;
        m_elementsLeft = elementCount;
        m_valuesLeft = 0;
    } else if (m_stage != Stage::coordinates || place < m_nextPlace) {
        fail("a vertex is out of order");
        return MlineRole::extra;
    }
    for (unsigned skipped = m_nextPlace; skipped < place; ++skipped) {
        if (!isZ(skipped)) {
            fail("a vertex is not complete");
        }
    }
    m_nextPlace = place + 1;
    if (m_keepsVertices) {
        readReal(tag, coordinate(vertices.back(), place));
    } else {
        judgeReal(tag);
    }
    return MlineRole::vertex;
}

// As much as the counts ask for and the record can have.
void MlineParser::takeRoom() {
    if (!vertices.empty()) {
        return;
    }
    constexpr std::size_t kShortestTag = 4;     // "74", a line end, a digit
    constexpr std::size_t kNeededPerVertex = 6; // coordinates
    const std::size_t most = m_recordBytes / (kShortestTag * kNeededPerVertex);
    const std::size_t room = std::min(most, static_cast<std::size_t>(vertexCount));
    vertices.reserve(room);
    counts.reserve(
        std::min(m_recordBytes / kShortestTag, room * static_cast<std::size_t>(elementCount) * 2));
}

MlineRole MlineParser::feedCount(const Tag& tag, bool areas) {
    const bool inOrder = areas
                             ? m_stage == Stage::lines && m_valuesLeft == 0
                             : m_elementsLeft > 0 && m_valuesLeft == 0 &&
                                   ((m_stage == Stage::coordinates && m_nextPlace > kLastNeeded) ||
                                    m_stage == Stage::areas);
    int count = 0;
    readCount(tag, count);
    if (!inOrder) {
        fail("its lists don't match the number of its elements");
        return MlineRole::extra;
    }
    m_stage = areas ? Stage::areas : Stage::lines;
    m_elementsLeft -= areas ? 1 : 0;
    m_valuesLeft = static_cast<std::uint32_t>(count);
    if (m_keepsVertices) {
        counts.push_back(m_valuesLeft);
    }
    return areas ? MlineRole::areaCount : MlineRole::lineCount;
}

MlineRole MlineParser::feedValue(const Tag& tag, bool areas) {
    if (m_stage != (areas ? Stage::areas : Stage::lines) || m_valuesLeft == 0) {
        fail("a list is longer than it says");
        return MlineRole::extra;
    }
    --m_valuesLeft;
    if (m_keepsVertices) {
        readReal(tag, values.emplace_back());
    } else {
        judgeReal(tag);
    }
    return areas ? MlineRole::area : MlineRole::line;
}

void MlineParser::readReal(const Tag& tag, double& value) {
    if (const auto number = parseReal(tag.value)) {
        value = *number;
    } else {
        fail(kNoNumber);
    }
}

void MlineParser::judgeReal(const Tag& tag) {
    if (!isReal(tag.value)) {
        fail(kNoNumber);
    }
}

void MlineParser::readCount(const Tag& tag, int& value) {
    value = parseInteger(tag.value).value_or(-1);
    if (value < 0) {
        value = 0;
        fail("a count is invalid");
    }
}

// The elements of a vertex end with an area list; without elements there is no list.
bool MlineParser::vertexIsComplete() const {
    return m_nextPlace > kLastNeeded && m_elementsLeft == 0 && m_valuesLeft == 0 &&
           m_stage != Stage::lines;
}

std::optional<Failure> MlineParser::finish() {
    constexpr std::uint32_t kCounts = kVertexCount | kElementCount;
    if ((m_seen & (kStyleName | kStyle)) == 0) {
        fail("it names no style");
    } else if ((m_seen & kCounts) != kCounts) {
        fail("a count is missing");
    } else if (m_stage != Stage::fields && !vertexIsComplete()) {
        fail("its last vertex is not complete");
    } else if (m_vertexCount != static_cast<std::size_t>(vertexCount)) {
        fail("the number of its vertices is not what it says");
    }
    if (m_error == nullptr) {
        return std::nullopt;
    }
    return Failure{FailureCause::unreadableInput, {}, 0, m_error};
}

} // namespace orvex
