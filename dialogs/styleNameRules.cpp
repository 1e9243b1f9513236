#include "styleNameRules.h"

#include <algorithm>

namespace {

bool isLetterOrDigit(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9');
}

template <class Rule>
bool holdsForAll(std::wstring_view name, Rule rule) {
    return !name.empty() && std::all_of(name.begin(), name.end(), rule);
}

} // namespace

bool isNameForNewStyle(std::wstring_view name) {
    return holdsForAll(
        name, [](wchar_t c) { return isLetterOrDigit(c) || c == L'$' || c == L'-' || c == L'_'; });
}

bool isNameForRenaming(std::wstring_view name) {
    return holdsForAll(name, isLetterOrDigit);
}
