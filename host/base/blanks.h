#pragma once

#include <string_view>

namespace orvex {

// Without the blanks and tabs at both ends.
[[nodiscard]] std::string_view trimBlanks(std::string_view text);
[[nodiscard]] std::wstring_view trimBlanks(std::wstring_view text);

} // namespace orvex
