#include "handleText.h"

#include "blanks.h"

#include <array>
#include <charconv>

namespace orvex {

std::string handleText(std::uint64_t handle) {
    std::array<char, 16> buffer{};
    char* const end = std::to_chars(buffer.begin(), buffer.end(), handle, 16).ptr;
    for (char& digit : buffer) {
        digit = static_cast<char>(digit >= 'a' ? digit - 'a' + 'A' : digit);
    }
    return {buffer.begin(), end};
}

std::optional<std::uint64_t> parseHandle(std::string_view text) {
    text = trimBlanks(text);
    std::uint64_t handle = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, handle, 16);
    return error == std::errc() && stop == end ? std::optional(handle) : std::nullopt;
}

} // namespace orvex
