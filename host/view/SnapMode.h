#pragma once

#include <cstdint>

namespace orvex {

// Kinds of targets that a point near them is drawn to, in the order in which they win where several
// lie together. All but the last are points; nearest is a line.
enum class SnapMode : std::uint8_t {
    vertex,        // of a multiline's chain
    elementEnd,    // where a drawn stretch of a multiline's element ends
    end,           // of any other line or arc
    axisCrossing,  // of a multiline's chain with another's chain or element
    intersection,  // of drawn lines
    middle,        // of a line, an arc or a segment of a chain
    perpendicular, // the foot on a line, seen from the base point
    nearest,       // anywhere on a line
};
inline constexpr int kSnapModeCount = 8;

} // namespace orvex
