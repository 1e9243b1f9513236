#pragma once

#include <map>
#include <string>
#include <string_view>

namespace orvex {

// The texts of a resource library by number.
using TextTable = std::map<unsigned, std::wstring>;

// Reads a table of texts from UTF-8: a line an entry, the number, a blank, the text. In a text \n
// is a line end, \t a tab and \\ a backslash. Empty lines and those that begin with "#" are
// comments; a line without a number is passed over. Of equal numbers the last one counts.
TextTable parseTextTable(std::string_view utf8);

} // namespace orvex
