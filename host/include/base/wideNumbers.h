#pragma once

// Numbers in wide text, whatever the user's language: leading blanks, a sign, decimal digits, a
// point, an exponent; what follows is ignored. No leading number, null, "nan" and "inf" give 0.
// _wtoi stops at the limits of int.
int _wtoi(const wchar_t* text);
double _wtof(const wchar_t* text);
