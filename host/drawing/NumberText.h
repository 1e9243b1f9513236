#pragma once

#include "PlainDecimal.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// Numbers as drawing files write them, whatever the user's language. Blanks around a number don't
// matter; any other text is nothing.

std::optional<double> parseReal(std::string_view text); // finite ones only; too small ones are 0
// Whether parseReal reads it, in a fraction of the time.
inline bool isReal(std::string_view text) {
    return PlainDecimal(text).isFinite() || parseReal(text).has_value();
}
std::optional<int> parseInteger(std::string_view text); // that fits 32 bits

// The shortest text that reads back as the same double, always with a point or an exponent. A
// value that is not finite has no form in the file and becomes 0.
std::string realText(double value);
void addRealText(std::string& target, double value);

} // namespace orvex
