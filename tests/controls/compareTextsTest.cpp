#include "compareTexts.h"

#include <gtest/gtest.h>

namespace {

TEST(CompareTexts, areNumbersAndDatesByTheirCharactersAlone) {
    struct Case {
        const wchar_t* text;
        bool isNumber;
        bool isDate;
    };
    const Case cases[] = {
        {nullptr, true, false},        {L"", true, false},
        {L"0123", true, false},        {L"-1", false, false},
        {L"1.5", false, false},        {L"\u0661", false, false},
        {L"31/12/2024", false, true},  {L"99/99/0000", false, true},
        {L"1/2/2024", false, false},   {L"31/12/20245", false, false},
        {L"31-12-2024", false, false}, {L"31/12/202x", false, false},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(IsNumber(each.text), each.isNumber) << (each.text != nullptr ? each.text : L"-");
        EXPECT_EQ(IsDate(each.text), each.isDate) << (each.text != nullptr ? each.text : L"-");
    }
}

TEST(CompareTexts, ordersAreThoseOfTheValues) {
    struct Case {
        const wchar_t* smaller;
        const wchar_t* greater;
    };
    for (const auto& [smaller, greater] :
         {Case{L"9", L"10"}, {L"-0.5", nullptr}, {L"wall", L"0.1"}, {L"-2", L"nan"}}) {
        EXPECT_EQ(NumberCompare(smaller, greater), -1);
        EXPECT_EQ(NumberCompare(greater, smaller), 1);
        EXPECT_EQ(NumberCompare(smaller, smaller), 0);
    }
    for (const auto& [earlier, later] : {Case{L"31/12/2023", L"01/01/2024"},
                                         {L"31/01/2024", L"01/02/2024"},
                                         {L"01/02/2024", L"02/02/2024"},
                                         {L"", L"01/01/0001"}}) {
        EXPECT_EQ(DateCompare(earlier, later), -1);
        EXPECT_EQ(DateCompare(later, earlier), 1);
        EXPECT_EQ(DateCompare(later, later), 0);
    }
}

} // namespace
