#include "KdCmColor.h"

#include <gtest/gtest.h>

#include <string>

namespace {

KdCmColor withValue(std::uint32_t value) {
    KdCmColor color;
    color.setColor(value);
    return color;
}

std::wstring keyOf(const KdCmColor& color) {
    std::wstring key(static_cast<std::size_t>(color.dictionaryKeyLength()) + 1, L'?');
    color.getDictionaryKey(key.data());
    EXPECT_EQ(key.back(), L'\0');
    key.pop_back();
    return key;
}

TEST(KdCmColorTest, thePackedValueTellsMethodAndIndex) {
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
        const KdCmColor color = withValue(each.value);
        EXPECT_EQ(color.color(), each.value);
        EXPECT_EQ(color.colorMethod(), each.method) << std::hex << each.value;
        EXPECT_EQ(color.colorNameForDisplay(), each.name);
        EXPECT_EQ(color.colorIndex(), each.index) << std::hex << each.value;
    }
}

TEST(KdCmColorTest, aValueWithoutMethodIsKeptAndChangesNothingThatShows) {
    for (const std::uint32_t value : {192U, 196608U, 0U, 0xFFFFFFFFU}) {
        KdCmColor color = withValue(value);
        EXPECT_EQ(color.color(), value);
        EXPECT_EQ(color.colorMethod(), KdCmColor::byLayer);
        EXPECT_EQ(color.colorIndex(), 256);

        color.setColorIndex(3);
        color.setColor(value);
        EXPECT_EQ(color.color(), value);
        EXPECT_EQ(color.colorIndex(), 3);
        EXPECT_EQ(color.rgb(), 0x00FF00U);

        color.setColor(0xC2123456U);
        color.setColor(value);
        EXPECT_EQ(color.rgb(), 0x123456U);
    }
}

TEST(KdCmColorTest, aTrueColorKeepsTheIndexStoredBeforeIt) {
    KdCmColor color;
    color.setColorIndex(5);
    color.setColorMethod(194);
    color.setColor(0xC2FF8000U);
    EXPECT_EQ(color.colorIndex(), 5);
    EXPECT_EQ(color.rgb(), 0xFF8000U);

    color.setColorIndex(7);
    EXPECT_EQ(color.colorMethod(), KdCmColor::byIndex);
    EXPECT_EQ(color.color(), 0xC3000007U);
    EXPECT_EQ(color.rgb(), 0xFFFFFFU);
    EXPECT_NE(color, withValue(0xC2FF8000U));
    EXPECT_EQ(color, withValue(0xC3000007U));

    // By layer is no index a true colour could fall back to.
    color.setColorIndex(256);
    color.setColor(0xC2FF8000U);
    EXPECT_EQ(color.colorIndex(), 30);

    // An index beyond the palette is stored, and shown as white.
    color.setColorIndex(65535);
    EXPECT_EQ(withValue(color.color()).colorIndex(), 65535);
    EXPECT_EQ(color.rgb(), 0xFFFFFFU);
}

TEST(KdCmColorTest, namesStandBesideTheValue) {
    const struct {
        const wchar_t* key;
        const wchar_t* book;
        const wchar_t* name;
    } cases[] = {{L"RAL$RAL 3000", L"RAL", L"RAL 3000"},
                 {L"Brick", L"", L"Brick"},
                 {L"a$b$c", L"a", L"b$c"},
                 {nullptr, L"", L""}};
    for (const auto& each : cases) {
        KdCmColor color = withValue(0xC2102030U);
        color.setNamesFromDictionaryKey(L"old$names");
        color.setNamesFromDictionaryKey(each.key);
        EXPECT_STREQ(color.bookName(), each.book);
        EXPECT_STREQ(color.colorName(), each.name);
        EXPECT_EQ(keyOf(color), each.key != nullptr ? each.key : L"");
        EXPECT_EQ(color.hasColorName(), *each.name != L'\0');
        EXPECT_EQ(color.color(), 0xC2102030U);

        color.setColor(0xC3000001U);
        EXPECT_STREQ(color.bookName(), each.book);
    }
}

TEST(PaletteTest, huesAndGreysStandWhereTheyAreExpected) {
    // A quarter step between primaries: 255 * 1/4 = 63, 255 * 1/2 = 127, 255 * 3/4 = 191.
    const std::pair<std::uint16_t, std::uint32_t> cases[] = {
        {2, 0xFFFF00},   {7, 0xFFFFFF},   {11, 0xFF7F7F},  {12, 0xA50000},
        {19, 0x261313},  {20, 0xFF3F00},  {60, 0xBFFF00},  {150, 0x007FFF},
        {210, 0xFF00FF}, {240, 0xFF003F}, {250, 0x333333}, {255, 0xFFFFFF}};
    for (const auto& each : cases) {
        EXPECT_EQ(orvex::paletteRgb(each.first), each.second) << each.first;
    }
}

TEST(PaletteTest, theNearestIndexOfAColorOfThePaletteShowsThatColor) {
    for (std::uint16_t index = 1; index < 256; ++index) {
        const std::uint32_t rgb = orvex::paletteRgb(index);
        const std::uint16_t nearest = orvex::nearestPaletteIndex(rgb);
        EXPECT_LE(nearest, index);
        EXPECT_EQ(orvex::paletteRgb(nearest), rgb) << index;
    }
}

} // namespace
