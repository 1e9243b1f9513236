#include "TransparentCommands.h"

#include "textCodec.h"

#include <algorithm>
#include <array>

namespace orvex {

std::optional<std::wstring> transparentCommand(std::wstring_view typed) {
    constexpr std::array<std::wstring_view, 3> kNames{L"ZOOM", L"U", L"REDO"};
    if (!typed.starts_with(L'\'')) {
        return std::nullopt;
    }
    const std::wstring name = foldCase(std::wstring(typed.substr(1)));
    return std::ranges::find(kNames, name) != kNames.end() ? std::optional(name) : std::nullopt;
}

} // namespace orvex
