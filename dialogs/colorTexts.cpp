#include "colorTexts.h"

#include "textNumbers.h"
#include "wideNumbers.h"

#include <algorithm>
#include <vector>

namespace mledit {

namespace {

constexpr int kByBlock = 0;
constexpr int kByLayer = 256;
constexpr const wchar_t* kByBlockText = L"BYBLOCK";
constexpr const wchar_t* kByLayerText = L"BYLAYER";
constexpr int kLastNamed = 7;

CStdStr<wchar_t> nameOf(int index) {
    CStdStr<wchar_t> name;
    name.LoadStringW(texts::kRed + static_cast<unsigned>(index - 1));
    return name;
}

} // namespace

CStdStr<wchar_t> colorText(int index) {
    if (index == kByBlock || index == kByLayer) {
        return index == kByBlock ? kByBlockText : kByLayerText;
    }
    if (index > 0 && index <= kLastNamed) {
        return nameOf(index);
    }
    CStdStr<wchar_t> digits;
    digits.Format(L"%d", index);
    return digits;
}

int colorIndexOf(const CStdStr<wchar_t>& text) {
    if (StrCmpI(text, kByLayerText) == 0) {
        return kByLayer;
    }
    if (StrCmpI(text, kByBlockText) == 0) {
        return kByBlock;
    }
    for (int index = 1; index <= kLastNamed; ++index) {
        if (StrCmpI(text, nameOf(index)) == 0) {
            return index;
        }
    }
    return _wtoi(text);
}

std::wstring bookKey(const KdCmColor& color) {
    const int length = std::max(color.dictionaryKeyLength(), 0);
    std::vector<wchar_t> key(static_cast<std::size_t>(length) + 1);
    color.getDictionaryKey(key.data());
    return key.data();
}

} // namespace mledit
