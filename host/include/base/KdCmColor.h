#pragma once

#include <cstdint>
#include <string>

// A colour. Its 32-bit value has the method in the top byte and red, green and blue, or the index,
// below. Names of a colour book stand beside the value: neither changes the other. Starts by
// layer.
class KdCmColor {
public:
    enum Method : int { byLayer = 192, byBlock = 193, byColor = 194, byIndex = 195 };

    [[nodiscard]] int colorMethod() const;
    void setColorMethod(int method);

    // All 32 bits are kept, so that an odd value reads back as it was given. A value without a
    // valid method byte leaves index and display as they were.
    [[nodiscard]] std::uint32_t color() const { return m_value; }
    void setColor(std::uint32_t value);

    // 1 to 255; 256 by layer, 0 by block. Of a true colour the index stored with it, else the
    // nearest one.
    [[nodiscard]] std::uint16_t colorIndex() const;
    void setColorIndex(std::uint16_t index); // ends a true colour

    // 0xRRGGBB as shown on a dark ground; by layer and by block as white.
    [[nodiscard]] std::uint32_t rgb() const;

    [[nodiscard]] bool hasColorName() const { return !m_bookName.empty() || !m_colorName.empty(); }
    [[nodiscard]] const wchar_t* bookName() const { return m_bookName.c_str(); }
    [[nodiscard]] const wchar_t* colorName() const { return m_colorName.c_str(); }
    // "ByLayer", "ByBlock", a book's name for it, the index, or red, green, blue.
    [[nodiscard]] std::wstring colorNameForDisplay() const;

    // "book$colour", or the colour alone when there is no book.
    [[nodiscard]] int dictionaryKeyLength() const;
    void getDictionaryKey(wchar_t* key) const; // room for the length and a terminator
    // Without "$" the key is the colour's name; an empty one clears both names.
    void setNamesFromDictionaryKey(const wchar_t* key);

    friend bool operator==(const KdCmColor&, const KdCmColor&) = default;

private:
    std::uint32_t m_value = 0xC0000000U; // by layer
    std::uint32_t m_shown = 0xC0000000U; // the last value that had a valid method
    std::uint16_t m_index = 256;         // of a true colour: 1 to 255 when one was stored before
    std::wstring m_bookName;
    std::wstring m_colorName;
};

namespace orvex {

// 0xRRGGBB of a colour index from 1 to 255 on a dark ground (7 is white).
constexpr std::uint32_t kRgbBits = 0xFFFFFF; // of a colour that has more beside them

std::uint32_t paletteRgb(std::uint16_t index);

// The index from 1 to 255 whose colour lies nearest.
std::uint16_t nearestPaletteIndex(std::uint32_t rgb);

} // namespace orvex
