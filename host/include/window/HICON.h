#pragma once

#include "HINSTANCE.h"

struct HICON__;

// An icon. Opaque, never released; null is no icon.
using HICON = HICON__*;

// The handle of a resource library that is open, by its file name; null when it isn't. Pictures are
// looked for below ":/" and the file's name without suffix.
HINSTANCE GetModuleHandleW(const wchar_t* name);

// The icon "<number>.png" or "<number>.svg" of a library; null for a null handle and where there is
// none.
HICON LoadIconW(HINSTANCE library, unsigned number);
