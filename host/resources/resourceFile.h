#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// A compressed entry of a resource library may claim no more than this, in bytes.
inline constexpr std::size_t kLargestResource = 64UL << 20;

// What is wrong with a binary Qt resource file, to be shown to a user; nothing when it is sound. Qt
// follows the offsets of such a file wherever they lead, so it is given sound ones only: a tree in
// which each node is reached once, names and payloads within the file, and compressed payloads that
// say their size.
std::optional<std::string> findFaultOfResourceFile(std::string_view bytes);

} // namespace orvex
