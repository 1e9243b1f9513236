#pragma once

#include "resbuf.h"

// Asks for a file through the current source. The default may be a folder or a file. Flags: 3 a
// file to save into, 64 an existing file. With the status normal the result is a text (5005).
int kdedGetFileD(const wchar_t* title, const wchar_t* defaultPath, const wchar_t* extension,
                 int flags, resbuf* result);
