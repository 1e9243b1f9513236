#pragma once

#include "KdGePoint3d.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace orvex {

// A point as it was typed, in the user's coordinate system.
struct TypedPoint {
    KdGePoint3d point;
    std::optional<std::uint64_t> handle; // typed after it; 0 for a number that no handle can be
};

// A text that was meant for a point, and can't be one.
struct BrokenPoint {
    std::size_t place = 0; // the index of the character that is wrong; the length where one misses
    std::wstring reason;   // half a sentence
};

// std::monostate is a text that wasn't meant for a point: it has no comma, "<" or "@".
using PointReading = std::variant<std::monostate, TypedPoint, BrokenPoint>;

// Reads "x,y" and "x,y,z"; from the last point "@dx,dy", "@dx,dy,dz" and "@length<angle", in
// degrees from the X axis counter-clockwise, and "@" for that point itself. A handle may follow:
// "#2A". Blanks around numbers don't count. z is 0 where it isn't given, or the last point's.
// Multiples of 30 degrees are exact. Results are finite.
PointReading readPoint(std::wstring_view text, const KdGePoint3d& last);

} // namespace orvex
