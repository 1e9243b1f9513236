#include "wideNumbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <string>

namespace {

TEST(WideNumbersTest, IntegersAreReadAsFarAsTheyGo) {
    struct Case {
        const wchar_t* text;
        int value;
    };
    // Digits of other scripts are none here.
    const Case cases[] = {{L"45abc", 45},
                          {L"  -7", -7},
                          {L"\t+3.9", 3},
                          {L"", 0},
                          {L"- 5", 0},
                          {L"0x20", 0},
                          {L"\u0663", 0},
                          {nullptr, 0},
                          {L"2147483648", INT_MAX},
                          {L"-99999999999999999999999", INT_MIN}};
    for (const Case& each : cases) {
        EXPECT_EQ(_wtoi(each.text), each.value);
    }
}

TEST(WideNumbersTest, RealsAreReadAsFarAsTheyGo) {
    struct Case {
        const wchar_t* text;
        double value;
    };
    const Case cases[] = {{L"45abc", 45},  {L" -1.5 mm", -1.5}, {L"+.25", 0.25}, {L"5.", 5},
                          {L"1e3", 1000},  {L"1E-2x", 0.01},    {L"1e", 1},      {L"1e+", 1},
                          {L"2,5", 2},     {L".", 0},           {L"-", 0},       {L"nan", 0},
                          {L"inf", 0},     {L"-infinity", 0},   {L"0x20", 0},    {L"", 0},
                          {L"1.2.3", 1.2}, {nullptr, 0}};
    for (const Case& each : cases) {
        EXPECT_EQ(_wtof(each.text), each.value);
    }
}

TEST(WideNumbersTest, ARealThatNoDoubleHoldsIsTheLargestOrNothing) {
    constexpr double kMost = std::numeric_limits<double>::max();
    EXPECT_EQ(_wtof(L"1e400"), kMost);
    EXPECT_EQ(_wtof(std::wstring(310, L'9').c_str()), kMost);
    EXPECT_EQ(_wtof((L"0." + std::wstring(400, L'0') + L"1e800").c_str()), kMost);
    EXPECT_EQ(_wtof(L"1e99999999999999999999999"), kMost);
    EXPECT_EQ(_wtof(L"1e-99999999999999999999999"), 0.0);
    EXPECT_EQ(_wtof((std::wstring(400, L'1') + L"e-399").c_str()), 1.1111111111111112);
    EXPECT_EQ(_wtof(L"0e99999"), 0.0);
}

} // namespace
