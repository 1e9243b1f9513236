#pragma once

#include <initializer_list>
#include <string>

namespace orvex {

// A text for the user in the language of the window; as it stands, in English, where no translation
// is installed, so in every program without a window. `english` is a literal, for tools/translate
// to find; %1, %2, ... in it are places of the values. Keywords in brackets, names of commands and
// numbers are the same in every language. UTF-8.
std::string hostText(const char* english, std::initializer_list<std::string> values = {});
std::wstring wideHostText(const char* english, std::initializer_list<std::wstring> values = {});

} // namespace orvex
