#include "CStdStr.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace {

using Str = CStdStr<wchar_t>;

TEST(CStdStrTest, nullReadsAsEmpty) {
    const wchar_t* const none = nullptr;
    Str text(none);
    EXPECT_TRUE(text.IsEmpty());
    text = L"old";
    text += none;
    EXPECT_STREQ(text, L"old");
    text = none;
    EXPECT_EQ(text, none);
    EXPECT_EQ(text.CompareNoCase(nullptr), 0);
    EXPECT_EQ(Str(L"a").Find(none), -1);
}

TEST(CStdStrTest, joinsTextsOfAllKinds) {
    Str text = Str(L"ab") + L"cd" + Str(L"ef");
    text += L'g';
    text.appendNarrow(" W\xC3\xA4nde");
    EXPECT_STREQ(text, L"abcdefg W\u00E4nde");
    text += text;
    EXPECT_EQ(text.GetLength(), 26);
    Str copy = text;
    copy += L'!';
    EXPECT_EQ(text.GetLength(), 26);
}

TEST(CStdStrTest, positionsAreBroughtInsideTheText) {
    const Str text(L"a.b.c");
    EXPECT_EQ(text.Find(L'.', 2), 3);
    EXPECT_EQ(text.Find(L'.', -7), 1);
    EXPECT_EQ(text.Find(L'.', 99), -1);
    EXPECT_EQ(text.Find(L"b.c"), 2);
    EXPECT_EQ(text.ReverseFind(L'.'), 3);
    EXPECT_STREQ(Str(L" \t\f a b\v ").Trim(), L"a b");
    constexpr int kMost = std::numeric_limits<int>::max();
    const struct {
        int from, count;
        const wchar_t* part;
    } cases[] = {{2, 2, L"b."},  {4, 5, L"c"},        {99, 1, L""},
                 {1, -1, L""},   {kMost, kMost, L""}, {-kMost - 1, kMost, L"a.b.c"},
                 {-5, 2, L"a."}, {1, kMost, L".b.c"}};
    for (const auto& each : cases) {
        EXPECT_STREQ(text.Mid(each.from, each.count), each.part) << each.from << ' ' << each.count;
    }
}

TEST(CStdStrTest, comparesWithoutCaseInAnyLanguage) {
    const struct {
        const wchar_t* a;
        const wchar_t* b;
        int sign;
    } cases[] = {{L"W\u00C4NDE", L"w\u00E4nde", 0},
                 {L"\u0421\u0422\u0415\u041D\u0410", L"\u0441\u0442\u0435\u043D\u0430", 0},
                 {L"\u03C3", L"\u03C2", 0},
                 {L"ab", L"A", 1},
                 {L"_", L"A", -1}, // below every letter, as the C library has it
                 {L"", L"a", -1}};
    for (const auto& each : cases) {
        EXPECT_EQ(StrCmpI(each.a, each.b), each.sign);
        EXPECT_EQ(StrCmpI(each.b, each.a), -each.sign);
        EXPECT_EQ(Str(each.a).CompareNoCase(each.b), each.sign);
    }
}

template <class... Values>
Str formatted(const wchar_t* pattern, Values... values) {
    Str text;
    text.Format(pattern, values...);
    return text;
}

TEST(CStdStrTest, formatsNumbersAndTexts) {
    EXPECT_STREQ(formatted(L"%d %d", 0, std::numeric_limits<int>::min()), L"0 -2147483648");
    EXPECT_STREQ(formatted(L"%u|%lu", 4294967295U, 5UL), L"4294967295|5");
    EXPECT_STREQ(formatted(L"%ls-%s-%ls", L"\u00E4", L"b", static_cast<const wchar_t*>(nullptr)),
                 L"\u00E4-b-");
    EXPECT_STREQ(formatted(L"%.1f %f %.14f", 0.25, -0.5, 0.1), L"0.2 -0.500000 0.10000000000000");
    EXPECT_STREQ(formatted(L"%5d|%-5d|%05d|%+d", 42, 42, -42, 42), L"   42|42   |-0042|+42");
    EXPECT_STREQ(formatted(L"%4ls|%.2ls|%c", L"ab", L"abc", L'z'), L"  ab|ab|z");
    EXPECT_STREQ(formatted(L"%X %04x", 48879, 255), L"BEEF 00ff");
    EXPECT_EQ(formatted(L"%f", -std::numeric_limits<double>::max()).Mid(0, 5), L"-1797");
}

TEST(CStdStrTest, oddFormatsStandAsWrittenAndOwnTextsAreRead) {
    EXPECT_STREQ(formatted(L"%d %q %d", 1, 2), L"1 %q %d");
    EXPECT_STREQ(formatted(L"%d%", 1), L"1%");
    EXPECT_STREQ(formatted(L"%n"), L"%n");
    Str text(L"wall");
    text.Format(L"%ls and %ls", text.c_str(), text.c_str());
    EXPECT_STREQ(text, L"wall and wall");
}

} // namespace
