#pragma once

#include <string>
#include <string_view>

namespace orvex {

// UTF-8 with each control character as \U+XXXX, as drawings write them: what is printed stays on
// its line and does nothing to a terminal. Bytes that are no UTF-8 stay.
std::string printableText(std::string_view utf8);

} // namespace orvex
