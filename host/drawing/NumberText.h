#pragma once

#include <string>
#include <string_view>

namespace orvex {

// Numbers as drawing files write them, whatever the user's language. Blanks around a number don't
// matter. Each reader gives false, and leaves the result alone, when the text is anything else.

bool parseReal(std::string_view text, double& value); // finite ones only; too small ones are 0
bool parseInteger(std::string_view text, int& value); // that fits 32 bits

// The shortest text that reads back as the same double, always with a point or an exponent. A
// value that is not finite has no form in the file and becomes 0.
std::string realText(double value);

} // namespace orvex
