#pragma once

#include <string_view>

namespace orvex {

// What some editors put at the front of a text in UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr std::string_view withoutByteOrderMark(std::string_view text) {
    return text.starts_with(kByteOrderMark) ? text.substr(kByteOrderMark.size()) : text;
}

} // namespace orvex
