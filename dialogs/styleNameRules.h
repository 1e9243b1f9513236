#pragma once

#include <string_view>

// Which characters a name may have that the user types for a style. Both rules know the letters
// and digits of ASCII alone. Neither limits the length or takes an empty name.

// For a new style: "$", "-" and "_" as well.
bool isNameForNewStyle(std::wstring_view name);

// For a style's new name: nothing else. A style that is called "A-B" got its name when it was made.
bool isNameForRenaming(std::wstring_view name);
