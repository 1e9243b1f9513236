#pragma once

#include "CStdStr.h"

// A text of the resource library opened at load; before that, of the current one. A missing text
// is empty.
CStdStr<wchar_t> LoadLocalCmdStr(unsigned int number);
