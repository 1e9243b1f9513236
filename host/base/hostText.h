#pragma once

#include <initializer_list>
#include <string>

namespace orvex {

// A text for the user in the language of the window; as it stands, in English, where no translation
// is installed, so in every program without a window. `english` is a literal, for tools/translate
// to find; %1, %2, ... in it are places of the values. Keywords, names of commands and numbers are
// the same in every language. UTF-8.
std::string hostText(const char* english, std::initializer_list<std::string> values = {});
std::wstring wideHostText(const char* english, std::initializer_list<std::wstring> values = {});

// Marks a literal that is given to one of these later.
constexpr const char* markedText(const char* english) {
    return english;
}

// A text that was got without its values.
std::string filledText(const std::string& text, std::initializer_list<std::string> values);
std::wstring filledText(const std::wstring& text, std::initializer_list<std::wstring> values);

} // namespace orvex
