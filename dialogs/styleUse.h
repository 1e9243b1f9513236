#pragma once

// Whether any multiline in any block of the open drawing has a style whose own name is this,
// ignoring case. Null is no style's name; without a drawing nothing is used.
bool isStyleUsed(const wchar_t* name);
