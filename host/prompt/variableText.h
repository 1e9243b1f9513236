#pragma once

#include "Failure.h"

#include <optional>
#include <string>

namespace orvex {

// A variable's value as users read and type it; nothing where there is no such variable.
std::optional<std::wstring> variableText(const std::wstring& name);

// Sets a variable from such a text.
std::optional<Failure> setVariableText(const std::wstring& name, const std::wstring& text);

} // namespace orvex
