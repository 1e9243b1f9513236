#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// Handles as drawing files and users write them: hexadecimal, in capitals where it is us who write.
std::string handleText(std::uint64_t handle);

// Digits in either case; blanks and tabs at the ends don't matter. Nothing for other texts and for
// numbers beyond 64 bits.
std::optional<std::uint64_t> parseHandle(std::string_view text);

} // namespace orvex
