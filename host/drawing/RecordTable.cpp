#include "RecordTable.h"

#include <algorithm>
#include <unordered_map>

namespace orvex {

std::uint32_t RecordTable::skipParts(std::uint32_t index) const {
    while (index < size() && isPartOfEntity(m_records[index].kind)) {
        ++index;
    }
    return index;
}

void CutDrawing::append(CutDrawing&& other) {
    std::unordered_map<std::uint64_t, std::uint32_t> placeOf; // by handle, from 1
    for (const NamedStyle& style : namedStyles) {
        placeOf.emplace(style.handle, static_cast<std::uint32_t>(placeOf.size() + 1));
    }
    std::vector<std::uint32_t> places{0}; // here of its named styles
    for (const NamedStyle& style : other.namedStyles) {
        const auto next = static_cast<std::uint32_t>(placeOf.size() + 1);
        const auto [place, isNew] = placeOf.try_emplace(style.handle, next);
        if (isNew) {
            namedStyles.push_back({style.handle, style.line + lineCount});
        }
        places.push_back(place->second);
    }
    for (DrawingWarning& warning : other.warnings) {
        warning.line += lineCount;
        warnings.push_back(std::move(warning));
    }
    records.append(other.records, places);
    lineEnds.lineFeeds += other.lineEnds.lineFeeds;
    lineEnds.carriageReturns += other.lineEnds.carriageReturns;
    lineCount += other.lineCount;
    highestHandle = std::max(highestHandle, other.highestHandle);
    hasEnd = other.hasEnd;
}

void RecordTable::append(const RecordTable& other, const std::vector<std::uint32_t>& stylePlaces) {
    m_records.pop_back(); // the end, where the other begins
    m_records.reserve(m_records.size() + other.m_records.size());
    for (Record record : other.m_records) {
        record.namedStyle = stylePlaces[record.namedStyle];
        m_records.push_back(record);
    }
}

} // namespace orvex
