#pragma once

#include <cstddef>
#include <string>

namespace orvex {

// "file:line: text", or "file: text" when no line is to blame (0).
std::string atLine(const std::string& file, std::size_t line, const std::string& text);

} // namespace orvex
