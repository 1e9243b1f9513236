#pragma once

#include "CStdStr.h"
#include "KdDbObjectId.h"

#include <vector>

// The keys of a dictionary of styles in its order; none where it can't be opened.
std::vector<CStdStr<wchar_t>> styleNames(KdDbObjectId dictionaryId);

// The style under a key of the dictionary, ignoring case; null where there is none.
KdDbObjectId styleUnder(KdDbObjectId dictionaryId, const CStdStr<wchar_t>& key);
