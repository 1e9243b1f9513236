#pragma once

#include "HINSTANCE.h"

// Libraries of texts and pictures, data only.

// Opens a library by file name: looked for in the folder of the module that asks, a folder named
// after the language first, then the host's. Each call is one opening; one file has one handle.
// Null when it is missing or can't be read.
HINSTANCE loadResourceDll(const wchar_t* name);

// Releases one opening; null or an unknown handle does nothing. Non-zero when something was
// released.
int AfxFreeLibrary(HINSTANCE library);

// The process-wide current library, from which unqualified look-ups take their resources. Null at
// the start and allowed; look-ups in a released one find nothing.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE library);

// Copies the text of that number (null library: the current one), at most `size` characters with
// the terminator, and returns its length. Not found: writes "" and gives 0.
int LoadStringW(HINSTANCE library, unsigned number, wchar_t* buffer, int size);

// The text where the number has one in the host's own library, else the default. The result stays
// valid until the next call.
const wchar_t* velaManagerResourceString(unsigned number, const wchar_t* defaultText);
