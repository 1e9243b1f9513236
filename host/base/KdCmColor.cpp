#include "KdCmColor.h"

#include <algorithm>

namespace {

constexpr int kMethodShift = 24;
constexpr std::uint32_t kIndexBits = 0xFFFF;
constexpr std::uint16_t kByLayerIndex = 256;
constexpr std::uint16_t kByBlockIndex = 0;
constexpr std::uint16_t kWhiteIndex = 7;

constexpr std::uint32_t packed(KdCmColor::Method method, std::uint32_t low) {
    return static_cast<std::uint32_t>(method) << kMethodShift | low;
}

constexpr bool isPaletteIndex(std::uint16_t index) {
    return index >= 1 && index <= 255;
}

std::wstring channels(std::uint32_t rgb) {
    return std::to_wstring(rgb >> 16 & 0xFFU) + L',' + std::to_wstring(rgb >> 8 & 0xFFU) + L',' +
           std::to_wstring(rgb & 0xFFU);
}

} // namespace

int KdCmColor::colorMethod() const {
    return static_cast<int>(m_shown >> kMethodShift);
}

// The method changes, what is shown stays as far as the new method can hold it.
void KdCmColor::setColorMethod(int method) {
    switch (method) {
    case byLayer:
        setColorIndex(kByLayerIndex);
        break;
    case byBlock:
        setColorIndex(kByBlockIndex);
        break;
    case byColor:
        setColor(packed(byColor, rgb()));
        break;
    case byIndex: {
        const std::uint16_t index = colorIndex();
        setColorIndex(isPaletteIndex(index) ? index : kWhiteIndex);
        break;
    }
    default:
        break;
    }
}

void KdCmColor::setColor(std::uint32_t value) {
    m_value = value;
    switch (static_cast<int>(value >> kMethodShift)) {
    case byLayer:
        m_index = kByLayerIndex;
        break;
    case byBlock:
        m_index = kByBlockIndex;
        break;
    case byIndex:
        m_index = static_cast<std::uint16_t>(value & kIndexBits);
        break;
    case byColor:
        break; // an index set before goes on standing beside the true colour
    default:
        return;
    }
    m_shown = value;
}

std::uint16_t KdCmColor::colorIndex() const {
    if (colorMethod() == byColor && !isPaletteIndex(m_index)) {
        return orvex::nearestPaletteIndex(m_shown & orvex::kRgbBits);
    }
    return m_index;
}

void KdCmColor::setColorIndex(std::uint16_t index) {
    if (index == kByLayerIndex) {
        setColor(packed(byLayer, 0));
    } else if (index == kByBlockIndex) {
        setColor(packed(byBlock, 0));
    } else {
        setColor(packed(byIndex, index));
    }
}

std::uint32_t KdCmColor::rgb() const {
    return colorMethod() == byColor ? m_shown & orvex::kRgbBits : orvex::paletteRgb(m_index);
}

std::wstring KdCmColor::colorNameForDisplay() const {
    if (colorMethod() == byLayer) {
        return L"ByLayer";
    }
    if (colorMethod() == byBlock) {
        return L"ByBlock";
    }
    if (!m_colorName.empty()) {
        return m_colorName;
    }
    return colorMethod() == byColor ? channels(m_shown) : std::to_wstring(m_index);
}

int KdCmColor::dictionaryKeyLength() const {
    const std::size_t separator = m_bookName.empty() ? 0 : 1;
    return static_cast<int>(m_bookName.size() + separator + m_colorName.size());
}

void KdCmColor::getDictionaryKey(wchar_t* key) const {
    if (key == nullptr) {
        return;
    }
    key = std::copy(m_bookName.begin(), m_bookName.end(), key);
    if (!m_bookName.empty()) {
        *key++ = L'$';
    }
    key = std::copy(m_colorName.begin(), m_colorName.end(), key);
    *key = L'\0';
}

void KdCmColor::setNamesFromDictionaryKey(const wchar_t* key) {
    const std::wstring text = key != nullptr ? key : L"";
    const std::size_t separator = text.find(L'$');
    if (separator == std::wstring::npos) {
        m_bookName.clear();
        m_colorName = text;
    } else {
        m_bookName = text.substr(0, separator);
        m_colorName = text.substr(separator + 1);
    }
}
