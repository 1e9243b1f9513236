#pragma once

#include <string>
#include <string_view>

namespace orvex {

// UTF-8 both ways. Bytes that are no UTF-8 and code points that are none become U+FFFD.
std::wstring widen(std::string_view utf8);
std::string narrow(std::wstring_view text);

// Upper case by simple folding, locale-free; names of symbols compare equal when their folds do.
std::wstring foldCase(std::wstring_view text);
bool equalWithoutCase(std::wstring_view a, std::wstring_view b);

} // namespace orvex
