#include "textCodec.h"

#include <gtest/gtest.h>

namespace {

using orvex::foldCase;
using orvex::narrow;
using orvex::widen;

TEST(TextCodecTest, everyCodePointGoesThereAndBack) {
    std::wstring text;
    for (char32_t value = 1; value <= 0x10FFFF; value += value < 0x3000 ? 1 : 0xFB) {
        if (value < 0xD800 || value > 0xDFFF) {
            text += static_cast<wchar_t>(value);
        }
    }
    text += static_cast<wchar_t>(0x10FFFF);
    EXPECT_EQ(widen(narrow(text)), text);
}

TEST(TextCodecTest, bytesThatAreNoUtf8AreReplacedOneByOne) {
    const std::pair<const char*, const wchar_t*> cases[] = {
        {"a\xFFz", L"a\uFFFDz"},
        {"\xC3", L"\uFFFD"},                               // cut off
        {"\xC3(", L"\uFFFD("},                             // no follower
        {"\xC0\x80", L"\uFFFD\uFFFD"},                     // longer than needed
        {"\xE0\x80\x80", L"\uFFFD\uFFFD\uFFFD"},           // likewise
        {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},           // a surrogate
        {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"}, // after the last code point
        {"\x80x", L"\uFFFDx"},
        {"\xF0\x9F\x98\x80", L"\U0001F600"},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(widen(bytes), text) << bytes;
    }
}

TEST(TextCodecTest, wideValuesThatAreNoCodePointsAreReplacedAndFoldToThemselves) {
    const std::wstring odd{static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000),
                           static_cast<wchar_t>(-1)};
    EXPECT_EQ(narrow(odd), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(foldCase(odd), odd);
    EXPECT_EQ(foldCase(L"Wand_1 \u00E4\u00DF\u0441"), L"WAND_1 \u00C4\u00DF\u0421");
}

} // namespace
