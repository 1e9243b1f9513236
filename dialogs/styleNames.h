#pragma once

#include "CStdStr.h"
#include "KdDbObjectId.h"

#include <vector>

// The keys of a dictionary of styles in its order; none where it can't be opened.
std::vector<CStdStr<wchar_t>> styleNames(KdDbObjectId dictionaryId);
