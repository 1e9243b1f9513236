#include "colorWords.h"

#include "textNumbers.h"
#include "wideNumbers.h"

#include <algorithm>
#include <vector>

namespace mledit {

namespace {

constexpr int kByBlock = 0;
constexpr int kByLayer = 256;
constexpr const wchar_t* kByBlockWord = L"BYBLOCK";
constexpr const wchar_t* kByLayerWord = L"BYLAYER";
constexpr int kLastNamed = 7;

CStdStr<wchar_t> nameOf(int index) {
    CStdStr<wchar_t> name;
    name.LoadStringW(texts::kRed + static_cast<unsigned>(index - 1));
    return name;
}

} // namespace

CStdStr<wchar_t> colorWord(int index) {
    if (index == kByBlock || index == kByLayer) {
        return index == kByBlock ? kByBlockWord : kByLayerWord;
    }
    if (index > 0 && index <= kLastNamed) {
        return nameOf(index);
    }
    CStdStr<wchar_t> digits;
    digits.Format(L"%d", index);
    return digits;
}

int colorIndexOf(const CStdStr<wchar_t>& word) {
    if (StrCmpI(word, kByLayerWord) == 0) {
        return kByLayer;
    }
    if (StrCmpI(word, kByBlockWord) == 0) {
        return kByBlock;
    }
    for (int index = 1; index <= kLastNamed; ++index) {
        if (StrCmpI(word, nameOf(index)) == 0) {
            return index;
        }
    }
    return _wtoi(word);
}

std::wstring bookKey(const KdCmColor& color) {
    const int length = std::max(color.dictionaryKeyLength(), 0);
    std::vector<wchar_t> key(static_cast<std::size_t>(length) + 1);
    color.getDictionaryKey(key.data());
    return key.data();
}

} // namespace mledit
