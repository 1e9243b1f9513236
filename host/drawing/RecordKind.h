#pragma once

#include <cstdint>
#include <string_view>

namespace orvex {

// What a record's first value says it is, as far as that matters here.
enum class RecordKind : std::uint8_t {
    other,
    // structure
    section,
    endSection,
    table,
    endTable,
    block,
    endBlock,
    endOfFile,
    // entries of tables
    layer,
    linetype,
    blockRecord,
    dimStyle,
    // objects
    dictionary,
    mlineStyle,
    group,
    sortTable,
    // entities
    mline,
    line,
    lwPolyline,
    polyline,
    circle,
    arc,
    ellipse,
    text,
    mtext,
    insert,
    solid,
    hatch,
    point,
    // parts of the entity before them
    vertex,
    attribute,
    endSequence,
};

[[nodiscard]] RecordKind recordKind(std::string_view name);

[[nodiscard]] constexpr bool isPartOfEntity(RecordKind kind) {
    return kind == RecordKind::vertex || kind == RecordKind::attribute ||
           kind == RecordKind::endSequence;
}

} // namespace orvex
