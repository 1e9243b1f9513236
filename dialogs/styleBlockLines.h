#pragma once

#include <string>
#include <vector>

class KdDbMlineStyle;

// A style, open for reading, as the lines of a library: UTF-8, without line ends, from "MLSTYLE" to
// "0". Several flags can't be told: only the first that is set, in the order of their values, is
// written.
std::vector<std::string> styleBlockLines(const KdDbMlineStyle& style);

// A text as the value of a line. A line feed would begin a line of its own and so forge a tag; it
// becomes a blank.
std::wstring oneLine(std::wstring text);
