#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace mledit {

// The bytes of a style library.

// Nothing when it isn't a regular file, is larger than 64 MiB or can't be read. A directory, pipe
// or device would give no lines, or never end.
std::optional<std::string> readLibraryFile(const std::filesystem::path& path);

// A path as dialogs have it; null gives an empty one.
std::filesystem::path libraryPath(const wchar_t* path);

} // namespace mledit
