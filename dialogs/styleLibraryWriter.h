#pragma once

#include <string>
#include <string_view>
#include <vector>

class KdDbMlineStyle;

// Saving into style libraries.
namespace mledit {

// A style, open for reading, as the lines of a library: UTF-8, without line ends, from "MLSTYLE" to
// "0". Several flags can't be written: only the first that is set, in the order of their values,
// is.
std::vector<std::string> styleBlockLines(const KdDbMlineStyle& style);

// A library with a style's block in it: in place of the one that has the name, ignoring case, else
// after all others. Everything else stays byte for byte, but for line ends, which become single
// line feeds.
std::string withStyleBlock(std::string_view library, std::wstring_view name,
                           const std::vector<std::string>& block);

// Saves a style, open for reading, under a name into the library at `path`, which is made where
// there is none. The file is replaced as a whole or stays as it was. Null for a style that can't be
// opened leaves the library empty. False when nothing was written: a path of more than 1024 bytes,
// or a file that isn't a regular one, is too large to be read, or can't be written.
bool saveLibraryStyle(const wchar_t* path, const wchar_t* name, const KdDbMlineStyle* style);

} // namespace mledit
