#pragma once

#include "CStdStr.h"
#include "HINSTANCE.h"

// The resource library's name made of a module's path: what stands between the last "\" and the
// last ".", with "Res.dll" behind it. A path of four characters or fewer is the name as it is.
CStdStr<wchar_t> resourceLibraryName(const CStdStr<wchar_t>& modulePath);

// Opens the library of that name; null without one or for an unknown module. A service of the
// module to its own code: the commands name their library outright.
HINSTANCE _loadResLib(HINSTANCE module);
