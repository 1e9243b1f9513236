#include "compareTexts.h"

#include <gtest/gtest.h>

namespace {

TEST(CompareTexts, areNumbersAndDatesByTheirCharactersAlone) {
    for (const wchar_t* text : {static_cast<const wchar_t*>(nullptr), L"", L"0123"}) {
        EXPECT_TRUE(IsNumber(text));
        EXPECT_FALSE(IsDate(text));
    }
    EXPECT_TRUE(IsDate(L"99/99/0000"));
    for (const wchar_t* text :
         {L"-1", L"1.5", L"\u0661", L"1/2/2024", L"31/12/20245", L"31-12-2024", L"31/12/202x"}) {
        EXPECT_FALSE(IsNumber(text) || IsDate(text)) << text;
    }
}

TEST(CompareTexts, ordersAreThoseOfTheValues) {
    using Pair = std::pair<const wchar_t*, const wchar_t*>;
    for (const auto& [smaller, greater] :
         {Pair{L"9", L"10"}, {L"-0.5", nullptr}, {L"wall", L"0.1"}, {L"-2", L"nan"}}) {
        EXPECT_EQ(NumberCompare(smaller, greater), -1);
        EXPECT_EQ(NumberCompare(greater, smaller), 1);
        EXPECT_EQ(NumberCompare(smaller, smaller), 0);
    }
    for (const auto& [earlier, later] : {Pair{L"31/12/2023", L"01/01/2024"},
                                         {L"31/01/2024", L"01/02/2024"},
                                         {L"01/02/2024", L"02/02/2024"},
                                         {L"", L"01/01/0001"}}) {
        EXPECT_EQ(DateCompare(earlier, later), -1);
        EXPECT_EQ(DateCompare(later, earlier), 1);
        EXPECT_EQ(DateCompare(later, later), 0);
    }
}

} // namespace
