#pragma once

#include "CStdStr.h"

// Comparisons of cell texts: -1, 0 or 1.

// Digits only, so an empty text is one, and one with a sign or a point isn't. Null is empty.
bool IsNumber(const wchar_t* text);

// By value, as far as the texts begin with a number; anything else, null too, is 0.
int NumberCompare(const wchar_t* a, const wchar_t* b);

// Ten characters: day, month and year as 31/12/2024. Any digits will do.
bool IsDate(const wchar_t* text);

// By year, then month, then day, of texts for which IsDate holds.
int DateCompare(const CStdStr<wchar_t>& a, const CStdStr<wchar_t>& b);
