#pragma once

#include "CStdStr.h"
#include "KdCmColor.h"

#include <string>

namespace mledit {

// A colour's index as text: by layer 256, by block 0 and the seven with a name of their own,
// which come from the current resource library; any other index in digits.
CStdStr<wchar_t> colorText(int index);

// Ignores case; any other text reads as a number.
int colorIndexOf(const CStdStr<wchar_t>& text);

// A colour's key in its colour book; empty where it is in none.
std::wstring bookKey(const KdCmColor& color);

} // namespace mledit
