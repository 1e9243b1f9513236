#pragma once

#include "CStdStr.h"
#include "KdDbObjectId.h"

#include <string_view>
#include <vector>

// The styles of a drawing and their names.
namespace mledit {

// The keys of a dictionary of styles in its order; none where it can't be opened.
std::vector<CStdStr<wchar_t>> styleNames(KdDbObjectId dictionaryId);

// The style under a key of the dictionary, ignoring case; null where there is none.
KdDbObjectId styleUnder(KdDbObjectId dictionaryId, const CStdStr<wchar_t>& key);

// Whether any multiline in any block of the open drawing has a style whose own name is this,
// ignoring case. Null is no style's name; without a drawing nothing is used.
bool isStyleUsed(const wchar_t* name);

// Which characters a name may have that the user types for a style: letters and digits of ASCII.
// Neither limits the length or takes an empty name.

// For a new style: "$", "-" and "_" as well.
bool isNameForNewStyle(std::wstring_view name);

// For a style's new name: nothing else. A style that is called "A-B" got its name when it was made.
bool isNameForRenaming(std::wstring_view name);

} // namespace mledit
