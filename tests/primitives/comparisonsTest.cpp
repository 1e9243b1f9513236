#include "comparisons.h"

#include "vectorMath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace mledit;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Case {
    const char* name;
    double a, b, tolerance;
    bool equal;
};

void expectAll(bool (*compare)(double, double, double), std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        EXPECT_EQ(compare(c.a, c.b, c.tolerance), c.equal) << c.name;
    }
}

// Tolerances and gaps are binary fractions, so that "at the bound" is exact.
TEST(Comparisons, mlineRealEqualIsAbsoluteAndComparesWithZeroNearZero) {
    expectAll(mlineRealEqual, {{"at the bound", 10.25, 10.0, 0.25, true},
                               {"just outside", 10.2578125, 10.0, 0.25, false},
                               {"large coordinates get no more room", 1e9 + 0.5, 1e9, 0.25, false},
                               {"b inside the tolerance: a alone counts", 0.5, 0.0, 1.0, true},
                               {"a outside while b is inside", 5.0, 0.5, 1.0, false},
                               {"the same the other way round", 1.0, 1.25, 1.0, true}});
}

TEST(Comparisons, iMvelaRealEqualGrowsWithTheCoordinates) {
    expectAll(IMvelaRealEqual, {{"at the bound", 10.0 * 1.25, 10.0, 0.25, true},
                                {"just outside", 12.51, 10.0, 0.25, false},
                                {"half a unit at a million", 1e6 + 0.5, 1e6, 1e-6, true},
                                {"b zero, a outside", 0.2578125, 0.0, 0.25, false}});
    EXPECT_TRUE(IMvelaIsZero(0.25, 0.25));
    EXPECT_FALSE(IMvelaIsZero(-0.2578125, 0.25));
    EXPECT_FALSE(IMvelaIsZero(kNaN, 0.25)) << "unlike VoMath::isZero";
}

TEST(Comparisons, anglesAreBroughtToOneTurnWithoutWrapAround) {
    expectAll(mlineAngleEqual,
              {{"both zero", 0.0, 0.0, 1e-10, true},
               {"zero and a full turn less nothing", 0.0, kTwoPi, 1e-10, true},
               {"zero and just below a full turn", 0.0, kTwoPi - 1e-6, 1e-10, false},
               {"turns more", 1.0 + 1000.0 * kTwoPi, 1.0, 1e-9, true},
               {"negative", -1.0, kTwoPi - 1.0, 1e-10, true},
               {"a negative turn stays a whole turn", -kTwoPi, 0.0, 1e-10, false},
               {"more turns than an int can count", 1e300, 1e300, 1e-10, true},
               {"no angle", kNaN, 0.0, 1e-10, false},
               {"infinity", kInfinity, 1.0, 1e-10, false}});
}

TEST(Comparisons, betweenTakesTheEndsInAnyOrderWithTheirTolerance) {
    const struct {
        double x, a, b;
        bool between;
    } cases[] = {
        {2.0, 3.0, 1.0, true},
        {0.74, 1.0, 3.0, false},
        {3.2578125, 3.0, 1.0, false},
        {-0.25, 0.0, 0.0, true},
        {-0.2578125, 0.0, 0.0, false},
        // An end within the tolerance of zero is compared as zero: 0.25 + 0.125 is too far.
        {0.375, 0.0, 0.125, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(mlineRealBetween(c.x, c.a, c.b, 0.25), c.between)
            << c.x << " in " << c.a << " to " << c.b;
    }
}

TEST(Comparisons, pointsAreEqualRelativelyAndStrictly) {
    const struct {
        const char* name;
        double a[3], b[3];
        bool equal;
    } cases[] = {
        {"outside the zero of b", {1, 0.2578125, 0}, {1, 0, 0}, false},
        {"b at the bound of zero, a beyond it", {0.28125, 0, 0}, {0.25, 0, 0}, false},
        {"relative gap at the bound is refused", {10.0, 0, 0}, {8.0, 0, 0}, false},
        {"relative gap just inside", {9.984375, 0, 0}, {8.0, 0, 0}, true},
        {"last coordinate decides too", {1, 1, 2}, {1, 1, 1}, false},
        {"a NaN never fails", {kNaN, 1, 1}, {1, 1, 1}, true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(IMvelaPointEqual(c.a, c.b, 0.25), c.equal) << c.name;
    }
    // The engine's comparison is at ten decimals; far out two points on one line count as one.
    const double b[3] = {1.0, 0.0, 0.0};
    const double near[3] = {1.0, 1e-11, 0.0};
    const double apart[3] = {1.0, 1.1e-10, 0.0};
    const double there[3] = {1e9, 1e9, 0.0};
    const double beside[3] = {1e9 + 0.0625, 1e9, 0.0};
    EXPECT_EQ(gx_pt_equal(near, b), 1);
    EXPECT_EQ(gx_pt_equal(apart, b), 0);
    EXPECT_EQ(gx_pt_equal(beside, there), 1);
}

} // namespace
