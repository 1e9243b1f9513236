#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvex {

// The keywords of a list that separates them by blanks.
std::vector<std::wstring> splitKeywords(std::wstring_view list);

} // namespace orvex
