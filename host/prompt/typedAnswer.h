#pragma once

#include "KdGePoint3d.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvex {

// What users type for numbers, points and picks. Nothing where the text is none; numbers are
// finite, with a point as decimal separator whatever the user's language.

std::optional<double> parseReal(std::wstring_view text);

// "x,y" or "x,y,z", blanks around the numbers allowed; z is 0 where it isn't given.
std::optional<KdGePoint3d> parsePoint(std::wstring_view text);

struct TypedPick {
    KdGePoint3d point;
    std::optional<std::uint64_t> handle; // 0 for a number that no handle can be
};
// "#" and a hexadecimal handle; 0 for a number that no handle can be.
std::optional<std::uint64_t> parseHandlePick(std::wstring_view text);

// A point, with "#" and a hexadecimal handle after it or without.
std::optional<TypedPick> parsePick(std::wstring_view text);

} // namespace orvex
