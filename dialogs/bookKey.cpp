#include "bookKey.h"

#include <algorithm>
#include <vector>

std::wstring bookKey(const KdCmColor& color) {
    const int length = std::max(color.dictionaryKeyLength(), 0);
    std::vector<wchar_t> key(static_cast<std::size_t>(length) + 1);
    color.getDictionaryKey(key.data());
    return key.data();
}
