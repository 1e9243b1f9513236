#include "KdCmColor.h"

#include <gtest/gtest.h>

#include <string>

namespace {

KdCmColor withValue(std::uint32_t value) {
    KdCmColor colour;
    colour.setColor(value);
    return colour;
}

std::wstring keyOf(const KdCmColor& colour) {
    std::wstring key(static_cast<std::size_t>(colour.dictionaryKeyLength()) + 1, L'?');
    colour.getDictionaryKey(key.data());
    EXPECT_EQ(key.back(), L'\0');
    key.pop_back();
    return key;
}

TEST(KdCmColorTest, ThePackedValueTellsMethodAndIndex) {
    const struct {
        std::uint32_t value;
        int method, index;
        const wchar_t* name;
    } cases[] = {
        {0xC0000000U, 192, 256, L"ByLayer"},
        {0xC1000000U, 193, 0, L"ByBlock"},
        {0xC3000005U, 195, 5, L"5"},
        {0xC30000FFU, 195, 255, L"255"},
        {0xC2FF8000U, 194, 30, L"255,128,0"},
        {0xC20080FFU, 194, 150, L"0,128,255"},
        // None is black; the darkest blue, red and green have 38 in one channel, red comes first.
        {0xC2000000U, 194, 18, L"0,0,0"},
    };
    for (const auto& each : cases) {
        const KdCmColor colour = withValue(each.value);
        EXPECT_EQ(colour.color(), each.value);
        EXPECT_EQ(colour.colorMethod(), each.method) << std::hex << each.value;
        EXPECT_EQ(colour.colorNameForDisplay(), each.name);
        EXPECT_EQ(colour.colorIndex(), each.index) << std::hex << each.value;
    }
}

TEST(KdCmColorTest, AValueWithoutMethodIsKeptAndChangesNothingThatShows) {
    for (const std::uint32_t value : {192U, 196608U, 0U, 0xFFFFFFFFU}) {
        KdCmColor colour = withValue(value);
        EXPECT_EQ(colour.color(), value);
        EXPECT_EQ(colour.colorMethod(), KdCmColor::byLayer);
        EXPECT_EQ(colour.colorIndex(), 256);

        colour.setColorIndex(3);
        colour.setColor(value);
        EXPECT_EQ(colour.color(), value);
        EXPECT_EQ(colour.colorIndex(), 3);
        EXPECT_EQ(colour.rgb(), 0x00FF00U);

        colour.setColor(0xC2123456U);
        colour.setColor(value);
        EXPECT_EQ(colour.rgb(), 0x123456U);
    }
}

TEST(KdCmColorTest, ATrueColourKeepsTheIndexStoredBeforeIt) {
    KdCmColor colour;
    colour.setColorIndex(5);
    colour.setColorMethod(194);
    colour.setColor(0xC2FF8000U);
    EXPECT_EQ(colour.colorIndex(), 5);
    EXPECT_EQ(colour.rgb(), 0xFF8000U);

    colour.setColorIndex(7);
    EXPECT_EQ(colour.colorMethod(), KdCmColor::byIndex);
    EXPECT_EQ(colour.color(), 0xC3000007U);
    EXPECT_EQ(colour.rgb(), 0xFFFFFFU);
    EXPECT_NE(colour, withValue(0xC2FF8000U));
    EXPECT_EQ(colour, withValue(0xC3000007U));

    // By layer is no index a true colour could fall back to.
    colour.setColorIndex(256);
    colour.setColor(0xC2FF8000U);
    EXPECT_EQ(colour.colorIndex(), 30);

    // An index beyond the palette is stored, and shown as white.
    colour.setColorIndex(65535);
    EXPECT_EQ(withValue(colour.color()).colorIndex(), 65535);
    EXPECT_EQ(colour.rgb(), 0xFFFFFFU);
}

TEST(KdCmColorTest, NamesStandBesideTheValue) {
    const struct {
        const wchar_t* key;
        const wchar_t* book;
        const wchar_t* name;
    } cases[] = {{L"RAL$RAL 3000", L"RAL", L"RAL 3000"},
                 {L"Brick", L"", L"Brick"},
                 {L"a$b$c", L"a", L"b$c"},
                 {nullptr, L"", L""}};
    for (const auto& each : cases) {
        KdCmColor colour = withValue(0xC2102030U);
        colour.setNamesFromDictionaryKey(L"old$names");
        colour.setNamesFromDictionaryKey(each.key);
        EXPECT_STREQ(colour.bookName(), each.book);
        EXPECT_STREQ(colour.colorName(), each.name);
        EXPECT_EQ(keyOf(colour), each.key != nullptr ? each.key : L"");
        EXPECT_EQ(colour.hasColorName(), *each.name != L'\0');
        EXPECT_EQ(colour.color(), 0xC2102030U);

        colour.setColor(0xC3000001U);
        EXPECT_STREQ(colour.bookName(), each.book);
    }
}

TEST(PaletteTest, HuesAndGreysStandWhereTheyAreExpected) {
    // A quarter step between primaries: 255 * 1/4 = 63, 255 * 1/2 = 127, 255 * 3/4 = 191.
    const std::pair<std::uint16_t, std::uint32_t> cases[] = {
        {2, 0xFFFF00},   {7, 0xFFFFFF},   {11, 0xFF7F7F},  {12, 0xA50000},
        {19, 0x261313},  {20, 0xFF3F00},  {60, 0xBFFF00},  {150, 0x007FFF},
        {210, 0xFF00FF}, {240, 0xFF003F}, {250, 0x333333}, {255, 0xFFFFFF}};
    for (const auto& each : cases) {
        EXPECT_EQ(orvex::paletteRgb(each.first), each.second) << each.first;
    }
}

TEST(PaletteTest, TheNearestIndexOfAColourOfThePaletteShowsThatColour) {
    for (std::uint16_t index = 1; index < 256; ++index) {
        const std::uint32_t rgb = orvex::paletteRgb(index);
        const std::uint16_t nearest = orvex::nearestPaletteIndex(rgb);
        EXPECT_LE(nearest, index);
        EXPECT_EQ(orvex::paletteRgb(nearest), rgb) << index;
    }
}

} // namespace
