#include "unitText.h"

#include "PromptFixture.h"
#include "measure.h"
#include "systemVariables.h"

#include <cmath>
#include <limits>

namespace {

class NumberText : public PromptFixture {
protected:
    static void setDimzin(short rule) { orvex::PromptSession::current().dimzin = rule; }
    static std::wstring length(double value, int precision) {
        wchar_t text[512] = L"unset";
        kddbRToS(value, 2, precision, text);
        return text;
    }
    static std::wstring angle(double radians, int precision) {
        wchar_t text[512] = L"unset";
        kddbAngToS(radians, 0, precision, text);
        return text;
    }
};

TEST_F(NumberText, lengthsRoundHalvesAwayFromZeroAndDropZerosByDimzin) {
    setDimzin(8);
    const std::pair<double, const wchar_t*> cases[] = {
        {0.5, L"0.5"},  {1.0, L"1"},
        {-0.0, L"0"},   {0.125, L"0.1"},
        {0.25, L"0.3"}, {-0.25, L"-0.3"},
        {0.15, L"0.2"}, {9.96, L"10"},
        {-0.04, L"0"},  {1e21, L"1000000000000000000000"},
    };
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(length(value, 1), text) << value;
    }
    EXPECT_EQ(length(std::numeric_limits<double>::max(), 1).size(), 309U);
    EXPECT_EQ(length(std::numeric_limits<double>::infinity(), 1), L"");
    setDimzin(0);
    EXPECT_EQ(length(0.5, 3), L"0.500");
    setDimzin(12);
    EXPECT_EQ(length(-0.5, 3), L"-.5");
}

TEST_F(NumberText, anglesAreDecimalDegreesAndBadTextsChangeNothing) {
    setDimzin(0);
    EXPECT_EQ(angle(1.5707963267948966, 14), L"90.00000000000000");
    EXPECT_EQ(angle(-0.7853981633974483, 2), L"-45.00");
    double radians = 7;
    for (const wchar_t* bad : {L"", L"abc", L"45x", L"1,5", L"nan"}) {
        EXPECT_NE(kddbAngToF(bad, 0, &radians), Status::done) << bad;
        EXPECT_EQ(radians, 7);
    }
    EXPECT_EQ(kddbAngToF(L" 90 ", 0, &radians), Status::done);
    EXPECT_EQ(radians, 1.5707963267948966);
}

TEST(Measure, anglesRunFromZeroToTwoPiWithoutTolerance) {
    const double origin[3] = {1, 1, 5};
    const auto angleTo = [&](double x, double y) {
        const double end[3] = {1 + x, 1 + y, 9};
        return kdutAngle(origin, end);
    };
    EXPECT_EQ(angleTo(0, 0), 0.0);
    EXPECT_EQ(angleTo(-0.0, -0.0), 0.0);
    EXPECT_EQ(angleTo(-1, 0), 3.141592653589793);
    EXPECT_EQ(angleTo(0, -1), -1.5707963267948966 + 6.283185307179586);
    const double end[3] = {3, 4, 11}; // 2, 3, 6 away
    EXPECT_EQ(kdutDistance(origin, end), 7.0);
}

} // namespace
