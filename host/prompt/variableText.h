#pragma once

#include <optional>
#include <string>

namespace orvex {

// A variable's value as users read and type it; nothing where there is no such variable.
std::optional<std::wstring> variableText(const std::wstring& name);

// Sets a variable from such a text. Nothing when it went well, else the reason.
std::optional<std::wstring> setVariableText(const std::wstring& name, const std::wstring& text);

} // namespace orvex
