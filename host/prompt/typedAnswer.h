#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvex {

// What users type for numbers and handles. Nothing where the text is none; numbers are finite, with
// a point as decimal separator whatever the user's language.

std::optional<double> parseReal(std::wstring_view text);

// "#" and a hexadecimal handle; 0 for a number that no handle can be.
std::optional<std::uint64_t> parseHandlePick(std::wstring_view text);

} // namespace orvex
