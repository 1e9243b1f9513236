#include "bookKey.h"

#include <algorithm>
#include <vector>

std::wstring bookKey(const KdCmColor& colour) {
    const int length = std::max(colour.dictionaryKeyLength(), 0);
    std::vector<wchar_t> key(static_cast<std::size_t>(length) + 1);
    colour.getDictionaryKey(key.data());
    return key.data();
}
