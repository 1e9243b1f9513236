#include "wideNumbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <string>

namespace {

template <class Number>
struct Case {
    const wchar_t* text;
    Number value;
};

TEST(WideNumbersTest, integersAreReadAsFarAsTheyGo) {
    // Digits of other scripts are none here.
    const Case<int> cases[] = {{L"45abc", 45},
                               {L"\t+3.9", 3},
                               {L"", 0},
                               {L"- 5", 0},
                               {L"0x20", 0},
                               {L"\u0663", 0},
                               {nullptr, 0},
                               {L"2147483648", INT_MAX},
                               {L"-99999999999999999999999", INT_MIN}};
    for (const auto& each : cases) {
        EXPECT_EQ(_wtoi(each.text), each.value);
    }
}

TEST(WideNumbersTest, realsAreReadAsFarAsTheyGo) {
    constexpr double kMost = std::numeric_limits<double>::max();
    const Case<double> cases[] = {{L" -1.5 mm", -1.5},
                                  {L"+.25", 0.25},
                                  {L"5.", 5},
                                  {L"1E-2x", 0.01},
                                  {L"1e+", 1},
                                  {L"2,5", 2},
                                  {L".", 0},
                                  {L"-", 0},
                                  {L"nan", 0},
                                  {L"-infinity", 0},
                                  {L"0x20", 0},
                                  {L"1.2.3", 1.2},
                                  {nullptr, 0},
                                  // What no double holds is the largest or nothing.
                                  {L"1e400", kMost},
                                  {L"1e99999999999999999999999", kMost},
                                  {L"1e-99999999999999999999999", 0},
                                  {L"0e99999", 0}};
    for (const auto& each : cases) {
        EXPECT_EQ(_wtof(each.text), each.value);
    }
    EXPECT_EQ(_wtof(std::wstring(310, L'9').c_str()), kMost);
    EXPECT_EQ(_wtof((L"0." + std::wstring(400, L'0') + L"1e800").c_str()), kMost);
    EXPECT_EQ(_wtof((std::wstring(400, L'1') + L"e-399").c_str()), 1.1111111111111112);
}

} // namespace
