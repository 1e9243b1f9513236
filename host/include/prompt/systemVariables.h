#pragma once

#include "resbuf.h"

// Reads a system variable; names ignore case. On failure the type is 0 and the value zeroed. A
// text is the caller's, given back with rvex_free.
int kdedGetVar(const wchar_t* name, resbuf* result);

// Sets a system variable from a value of its own type, or of one that converts without loss.
// Read-only variables, values out of range and an unknown style for CMLSTYLE are refused.
int kdedSetVar(const wchar_t* name, const resbuf* value);
