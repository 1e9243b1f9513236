#include "lineMath.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Point {
    double xyz[3];
};

void expectPoint(const double* actual, const Point& expected, const char* name) {
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(actual[i], expected.xyz[i], 1e-9) << name << ", coordinate " << i;
    }
}

TEST(FootOnLine, TellsWhereTheFootLies) {
    const double r3 = std::sqrt(3.0);
    struct {
        const char* name;
        Point p, a, b;
        short result;
        double distance;
        Point foot;
    } const cases[] = {
        {"between", {{4, 3, 0}}, {{0, 0, 0}}, {{10, 0, 0}}, 1, 3.0, {{4, 0, 0}}},
        {"on the end", {{10, -2, 0}}, {{0, 0, 0}}, {{10, 0, 0}}, 1, 2.0, {{10, 0, 0}}},
        {"past the end", {{10 + 1e-14, 3, 0}}, {{0, 0, 0}}, {{10, 0, 0}}, 0, 3.0, {{10, 0, 0}}},
        {"steep line, compared by y", {{3, 5, 0}}, {{0, 0, 0}}, {{0, 10, 0}}, 1, 3.0, {{0, 5, 0}}},
        {"upright, by z", {{3, 0, 11}}, {{0, 0, 0}}, {{0, 0, 10}}, 0, 3.0, {{0, 0, 11}}},
        {"in space", {{1, 1, 4}}, {{0, 0, 0}}, {{5, 5, 5}}, 1, std::sqrt(6.0), {{2, 2, 2}}},
        {"one point", {{1, 1, 1}}, {{0, 0, 0}}, {{0, 1e-11, 0}}, -1, r3, {{0, 0, 0}}},
    };
    for (const auto& c : cases) {
        double distance = -1.0;
        double foot[3] = {9, 9, 9};
        EXPECT_EQ(gx_ptlndist(c.p.xyz, c.a.xyz, c.b.xyz, &distance, foot), c.result) << c.name;
        EXPECT_NEAR(distance, c.distance, 1e-12) << c.name;
        expectPoint(foot, c.foot, c.name);
    }
}

TEST(FootOnLine, OfANullIsTheOriginAtNoDistance) {
    const double p[3] = {1, 2, 3};
    double distance = 5.0;
    double foot[3] = {9, 9, 9};
    EXPECT_EQ(gx_ptlndist(p, nullptr, p, &distance, foot), -2);
    EXPECT_EQ(distance, 0.0);
    expectPoint(foot, {{0, 0, 0}}, "null");
}

TEST(PlanCrossing, TellsOnWhichSegmentsItLies) {
    struct {
        const char* name;
        Point a1, a2, b1, b2;
        short result;
        Point crossing;
    } const cases[] = {
        {"both", {{0, 0, 0}}, {{10, 0, 0}}, {{4, -5, 0}}, {{4, 5, 0}}, 3, {{4, 0, 0}}},
        {"first only", {{0, 0, 0}}, {{10, 0, 0}}, {{4, 1, 0}}, {{4, 5, 0}}, 1, {{4, 0, 0}}},
        {"second only", {{5, 0, 0}}, {{10, 0, 0}}, {{4, -5, 0}}, {{4, 5, 0}}, 2, {{4, 0, 0}}},
        {"neither", {{5, 0, 0}}, {{10, 0, 0}}, {{4, 1, 0}}, {{4, 5, 0}}, 0, {{4, 0, 0}}},
        {"end to end", {{0, 0, 0}}, {{10, 0, 0}}, {{10, 0, 0}}, {{10, 9, 0}}, 3, {{10, 0, 0}}},
        // z of the second line: halfway from 2 to 6.
        {"z of the second", {{0, 0, 0}}, {{10, 0, 0}}, {{4, -5, 2}}, {{4, 5, 6}}, 3, {{4, 0, 4}}},
        // On the first only, z is the first line's: 4/10 of the way from 1 to 6.
        {"z of the first", {{0, 0, 1}}, {{10, 0, 6}}, {{4, 1, 9}}, {{4, 5, 9}}, 1, {{4, 0, 3}}},
        // Beyond the second's end its line goes on: y 0 is 1/4 of its length before the start.
        {"produced", {{5, 0, 1}}, {{10, 0, 6}}, {{4, 1, 9}}, {{4, 5, 5}}, 0, {{4, 0, 10}}},
    };
    for (const auto& c : cases) {
        double out[3] = {0, 0, 0};
        EXPECT_EQ(gx_linexline(c.a1.xyz, c.a2.xyz, c.b1.xyz, c.b2.xyz, out), c.result) << c.name;
        expectPoint(out, c.crossing, c.name);
    }
}

TEST(PlanCrossing, OfParallelOrDegenerateLinesLeavesTheOutputAlone) {
    struct {
        const char* name;
        Point a1, a2, b1, b2;
    } const cases[] = {
        {"parallel", {{0, 0, 0}}, {{10, 0, 0}}, {{0, 1, 0}}, {{10, 1, 0}}},
        {"first a point", {{1, 1, 0}}, {{1, 1, 0}}, {{0, 0, 0}}, {{5, 0, 0}}},
        {"determinant at the bound", {{0, 0, 0}}, {{1, 0, 0}}, {{0, 0, 0}}, {{1, 1e-11, 0}}},
        // Long enough for the determinant, but the inverse slopes differ by less than 1e-11:
        // dx/dy is 1 and 1 + 5e-12.
        {"slopes too close", {{0, 0, 0}}, {{1000, 1000, 0}}, {{0, 0, 0}}, {{1000 + 5e-9, 1000, 0}}},
    };
    for (const auto& c : cases) {
        double out[3] = {7, 8, 9};
        EXPECT_EQ(gx_linexline(c.a1.xyz, c.a2.xyz, c.b1.xyz, c.b2.xyz, out), -1) << c.name;
        expectPoint(out, {{7, 8, 9}}, c.name);
    }
}

// The product of the distances to both ends bounds "on the segment" at 1e-7: with an end 1 away,
// a crossing about 1e-7 past the other end is still on.
TEST(PlanCrossing, CountsAsOnASegmentToASmallProduct) {
    const double a1[3] = {0, 0, 0};
    const double a2[3] = {1, 0, 0};
    const auto resultAt = [&](double x) {
        const double b1[3] = {x, -1, 0};
        const double b2[3] = {x, 1, 0};
        double out[3] = {0, 0, 0};
        return gx_linexline(a1, a2, b1, b2, out);
    };
    EXPECT_EQ(resultAt(1.0 + 0.99e-7), 3);
    EXPECT_EQ(resultAt(1.0 + 1.01e-7), 2);
    EXPECT_EQ(resultAt(-0.99e-7), 3);
    EXPECT_EQ(resultAt(-1.01e-7), 2);
}

// With coordinates of 1e9 the relative comparison with the ends, at 1e-11, accepts 0.01 where the
// product doesn't. It looks at the z that the output held before.
TEST(PlanCrossing, TakesTheEndsWithTheHeightThatTheOutputCameWith) {
    const double a1[3] = {1e9 - 100, 1e9, 0};
    const double a2[3] = {1e9, 1e9, 0};
    const double b1[3] = {1e9 + 0.0078125, 1e9 - 10, 0};
    const double b2[3] = {1e9 + 0.0078125, 1e9 + 10, 0};
    double zeroed[3] = {0, 0, 0};
    EXPECT_EQ(gx_linexline(a1, a2, b1, b2, zeroed), 3);
    double stale[3] = {0, 0, 5};
    EXPECT_EQ(gx_linexline(a1, a2, b1, b2, stale), 2);
}

} // namespace
