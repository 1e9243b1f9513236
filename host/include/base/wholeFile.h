#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// Files as wholes, read and saved as the host does with drawings. Paths in UTF-8.

// All bytes of a file. Nothing for one that can't be read, for one of more than `largest` bytes,
// and for what is no regular file: a folder, a pipe, a device, which might never end.
[[nodiscard]] std::optional<std::string> readWholeFile(const std::string& path,
                                                       std::uint64_t largest);

// Saves the bytes whole or not at all: an older file stays until the new one is complete on disk.
// A link stays; what is no regular file is written into. Where the folder admits no second file,
// an old one is written over in place, which a full disk may cut short. False when it failed.
[[nodiscard]] bool saveWholeFile(const std::string& path, std::string_view bytes);

} // namespace orvex
