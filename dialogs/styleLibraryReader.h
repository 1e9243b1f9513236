#pragma once

#include "CStdStr.h"

#include <optional>
#include <string>
#include <vector>

class KdDbMlineStyle;

namespace mledit {

// Style libraries: text files in UTF-8, one block of lines for each style. Only regular files of
// up to 64 MiB are opened: a pipe may have no writer, a device no end.

// The bytes of a library; nothing when it can't be opened.
std::optional<std::string> readLibrary(const wchar_t* path);

// The names in a library, in its order: whatever stands below a line "2". Nothing when the file
// can't be opened.
std::optional<std::vector<CStdStr<wchar_t>>> listLibraryStyles(const wchar_t* path);

// Gives a style, open for writing, the values of the block with that name, ignoring case; what the
// block doesn't name stays. True when the block was read to its end, so that the style is to be
// closed. Otherwise (no such file or block, or the file stops short) what was read so far stands
// in the style, and it is to be left open.
bool applyLibraryStyle(const wchar_t* path, const wchar_t* name, KdDbMlineStyle& style);

} // namespace mledit
