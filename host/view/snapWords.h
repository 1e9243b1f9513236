#pragma once

#include "SnapMode.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// A mode's word, as it is typed and kept, and its name, for people.
const wchar_t* snapWordOf(SnapMode mode);
const char* snapName(SnapMode mode);

// What a word at a question for a point switches on for that point, in any case and whether or not
// other letters of its name follow; NON is a point without snap. END takes the ends of elements,
// too, and INT the crossings of chains. Nothing for any other text.
std::optional<SnapModes> snapWord(std::wstring_view text);

// The modes of words with blanks or commas between them, each for itself; ALL are all. Nothing
// where one of them is no mode's.
std::optional<SnapModes> snapModesOf(std::wstring_view words);
// "VER END"; empty for none.
std::wstring snapWordsOf(SnapModes modes);

} // namespace orvex
