#include "lineMath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

namespace {

void expectPoint(const double* actual, const double* expected, const char* name) {
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(actual[i], expected[i], 1e-9) << name << ", coordinate " << i;
    }
}

TEST(FootOnLine, tellsWhereTheFootLies) {
    const double r3 = std::sqrt(3.0);
    const struct {
        const char* name;
        double p[3], a[3], b[3];
        short result;
        double distance;
        double foot[3];
    } cases[] = {
        {"between", {4, 3, 0}, {0, 0, 0}, {10, 0, 0}, 1, 3.0, {4, 0, 0}},
        {"on the end", {10, -2, 0}, {0, 0, 0}, {10, 0, 0}, 1, 2.0, {10, 0, 0}},
        {"past the end", {10 + 1e-14, 3, 0}, {0, 0, 0}, {10, 0, 0}, 0, 3.0, {10, 0, 0}},
        {"steep line, compared by y", {3, 5, 0}, {0, 0, 0}, {0, 10, 0}, 1, 3.0, {0, 5, 0}},
        {"upright, by z", {3, 0, 11}, {0, 0, 0}, {0, 0, 10}, 0, 3.0, {0, 0, 11}},
        {"in space", {1, 1, 4}, {0, 0, 0}, {5, 5, 5}, 1, std::sqrt(6.0), {2, 2, 2}},
        {"one point", {1, 1, 1}, {0, 0, 0}, {0, 1e-11, 0}, -1, r3, {0, 0, 0}},
    };
    for (const auto& c : cases) {
        double distance = -1.0;
        double foot[3] = {9, 9, 9};
        EXPECT_EQ(gx_ptlndist(c.p, c.a, c.b, &distance, foot), c.result) << c.name;
        EXPECT_NEAR(distance, c.distance, 1e-12) << c.name;
        expectPoint(foot, c.foot, c.name);
    }
    double distance = 5.0;
    double foot[3] = {9, 9, 9};
    const double origin[3] = {0, 0, 0};
    EXPECT_EQ(gx_ptlndist(cases[0].p, nullptr, cases[0].p, &distance, foot), -2);
    EXPECT_EQ(distance, 0.0);
    expectPoint(foot, origin, "null");
}

struct Case {
    const char* name;
    double a1[3], a2[3], b1[3], b2[3];
    int result;
    double out[3]; // {7, 8, 9}: unwritten
};

template <class Cross>
void check(Cross cross, std::initializer_list<Case> cases, double z = 9) {
    for (const Case& c : cases) {
        double out[3] = {7, 8, z};
        EXPECT_EQ(cross(c.a1, c.a2, c.b1, c.b2, out), c.result) << c.name;
        expectPoint(out, c.out, c.name);
    }
}

TEST(PlanCrossing, tellsOnWhichSegmentsItLies) {
    constexpr double m = 1e9;
    constexpr double x = m + 0.0078125;
    check(gx_linexline,
          {
              {"both", {0, 0, 0}, {10, 0, 0}, {4, -5, 0}, {4, 5, 0}, 3, {4, 0, 0}},
              {"second only", {5, 0, 0}, {10, 0, 0}, {4, -5, 0}, {4, 5, 0}, 2, {4, 0, 0}},
              {"end to end", {0, 0, 0}, {10, 0, 0}, {10, 0, 0}, {10, 9, 0}, 3, {10, 0, 0}},
              // z of the second line: halfway from 2 to 6.
              {"z of the second", {0, 0, 0}, {10, 0, 0}, {4, -5, 2}, {4, 5, 6}, 3, {4, 0, 4}},
              // On the first only, z is the first line's: 4/10 of the way from 1 to 6.
              {"z of the first", {0, 0, 1}, {10, 0, 6}, {4, 1, 9}, {4, 5, 9}, 1, {4, 0, 3}},
              // Beyond the second's end its line goes on: y 0 is 1/4 of its length before it.
              {"produced", {5, 0, 1}, {10, 0, 6}, {4, 1, 9}, {4, 5, 5}, 0, {4, 0, 10}},
              // With coordinates of 1e9 the relative comparison with the ends, at 1e-11, accepts
              // 0.01 where the product doesn't.
              {"far", {m - 100, m, 0}, {m, m, 0}, {x, m - 10, 0}, {x, m + 10, 0}, 3, {x, m, 0}},
          },
          0);
    // That looks at the z that the output held before.
    check(gx_linexline,
          {{"far", {m - 100, m, 0}, {m, m, 0}, {x, m - 10, 0}, {x, m + 10, 0}, 2, {x, m, 0}}}, 5);
}

TEST(PlanCrossing, ofParallelOrDegenerateLinesLeavesTheOutputAlone) {
    check(gx_linexline,
          {
              {"parallel", {0, 0, 0}, {10, 0, 0}, {0, 1, 0}, {10, 1, 0}, -1, {7, 8, 9}},
              {"first a point", {1, 1, 0}, {1, 1, 0}, {0, 0, 0}, {5, 0, 0}, -1, {7, 8, 9}},
              {"at the bound", {0, 0, 0}, {1, 0, 0}, {0, 0, 0}, {1, 1e-11, 0}, -1, {7, 8, 9}},
              // Long enough for the determinant, but dx/dy is 1 and 1 + 5e-12, too close by 1e-11.
              {"slopes", {0, 0, 0}, {1e3, 1e3, 0}, {0, 0, 0}, {1e3 + 5e-9, 1e3, 0}, -1, {7, 8, 9}},
          });
}

// The product of the distances to both ends bounds "on the segment" at 1e-7: with an end 1 away,
// a crossing about 1e-7 past the other end is still on.
TEST(PlanCrossing, countsAsOnASegmentToASmallProduct) {
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

TEST(SpaceCrossing, ofTwoVerticals) {
    check(linexline3d,
          {
              {"apart in plan", {0, 0, 0}, {0, 0, 5}, {1, 0, 0}, {1, 0, 5}, -1, {7, 8, 9}},
              {"touching, first below", {1, 2, 0}, {1, 2, 5}, {1, 2, 5}, {1, 2, 9}, 3, {1, 2, 5}},
              {"overlapping", {1, 2, 0}, {1, 2, 6}, {1, 2, 9}, {1, 2, 4}, -2, {1, 2, 4}},
              {"gap", {1, 2, 0}, {1, 2, 3}, {1, 2, 5}, {1, 2, 9}, -3, {7, 8, 9}},
          });
}

TEST(SpaceCrossing, ofParallels) {
    check(linexline3d,
          {
              {"apart in height", {0, 0, 0}, {4, 0, 0}, {0, 0, 1}, {4, 0, 1}, -1, {7, 8, 9}},
              // In plan one line, in space not: b1 is off the first.
              {"one plan line, other slope",
               {0, 0, 0},
               {4, 0, 0},
               {5, 0, 1},
               {9, 0, 2},
               -1,
               {7, 8, 9}},
              {"touching at the end", {0, 0, 0}, {4, 0, 0}, {6, 0, 0}, {4, 0, 0}, 3, {4, 0, 0}},
              {"b1 inside", {0, 0, 0}, {4, 0, 0}, {3, 0, 0}, {9, 0, 0}, -2, {3, 0, 0}},
              // The second covers the first: neither of its ends lies inside, and that reads as a
              // gap.
              {"second longer", {0, 0, 0}, {4, 0, 0}, {-1, 0, 0}, {9, 0, 0}, -3, {7, 8, 9}},
              {"gap", {0, 0, 0}, {4, 0, 0}, {6, 0, 0}, {9, 0, 0}, -3, {7, 8, 9}},
          });
}

TEST(SpaceCrossing, ofLinesThatCrossInPlan) {
    check(linexline3d,
          {
              {"both", {0, 0, 0}, {8, 8, 8}, {0, 8, 4}, {8, 0, 4}, 3, {4, 4, 4}},
              {"at different heights", {0, 0, 0}, {8, 8, 0}, {0, 8, 1}, {8, 0, 1}, -4, {7, 8, 9}},
              {"level sloped second misses",
               {4, -5, 2},
               {4, 5, 2},
               {0, 0, 0},
               {8, 0, 2},
               -4,
               {7, 8, 9}},
              // Heights are compared relatively, at 1e-7.
              {"height within",
               {0, 0, 1},
               {8, 8, 1},
               {0, 8, 1 + 5e-8},
               {8, 0, 1 + 5e-8},
               3,
               {4, 4, 1}},
              {"height beyond",
               {0, 0, 1},
               {8, 8, 1},
               {0, 8, 1 + 2e-7},
               {8, 0, 1 + 2e-7},
               -4,
               {7, 8, 9}},
              {"second only", {5, 0, 0}, {8, 0, 0}, {4, -1, 0}, {4, 5, 0}, 2, {4, 0, 0}},
              {"neither", {5, 0, 0}, {8, 0, 0}, {4, 1, 0}, {4, 5, 0}, 0, {4, 0, 0}},
              {"first upright in plan", {4, -5, 3}, {4, 5, 3}, {0, 0, 3}, {8, 4, 3}, 3, {4, 2, 3}},
          });
}

TEST(SpaceCrossing, ofASecondVertical) {
    constexpr double m = 1e6;
    constexpr double x = m + 1.05;
    check(linexline3d,
          {
              {"both", {0, 0, 0}, {8, 0, 8}, {2, 0, 0}, {2, 0, 5}, 3, {2, 0, 2}},
              {"above the second", {0, 0, 0}, {8, 0, 8}, {6, 0, 0}, {6, 0, 5}, 1, {6, 0, 6}},
              {"past the first", {0, 0, 0}, {8, 0, 8}, {9, 0, 0}, {9, 0, 20}, 2, {9, 0, 9}},
              {"off the line", {0, 0, 1}, {8, 4, 1}, {2, 2, 0}, {2, 2, 5}, -4, {7, 8, 9}},
              {"at the first's end", {0, 0, 1}, {8, 4, 1}, {8, 4, 0}, {8, 4, 5}, 3, {8, 4, 1}},
              // Off the line, but equal to the first's end for coordinates of a million.
              {"far",
               {m, m, 0},
               {m + 1, m + 1, 1},
               {x, m + 1, 0},
               {x, m + 1, 5},
               3,
               {x, m + 1, 1.05}},
              {"first along y", {2, 0, 0}, {2, 8, 8}, {2, 4, 0}, {2, 4, 9}, 3, {2, 4, 4}},
          });
}

// The first line always counts as met here, and the heights of the first decide for the second.
TEST(SpaceCrossing, ofAFirstVerticalIsNoMirror) {
    check(linexline3d,
          {
              {"both", {2, 0, 0}, {2, 0, 5}, {0, 0, 0}, {8, 0, 8}, 3, {2, 0, 2}},
              {"above the first", {6, 0, 0}, {6, 0, 5}, {0, 0, 0}, {8, 0, 8}, 1, {6, 0, 6}},
              {"past the second", {9, 0, 0}, {9, 0, 20}, {0, 0, 0}, {8, 0, 8}, 1, {9, 0, 9}},
              {"off the line", {2, 2, 0}, {2, 2, 5}, {0, 0, 1}, {8, 4, 1}, -4, {7, 8, 9}},
          });
}

} // namespace
