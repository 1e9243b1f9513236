#include "lineMath.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Point = std::array<double, 3>;

// "4,3,0 10,0,0": points.
std::vector<Point> points(const std::string& text) {
    std::istringstream in(text);
    std::vector<Point> all;
    char comma = 0;
    for (Point at{}; in >> at[0] >> comma >> at[1] >> comma >> at[2];) {
        all.push_back(at);
    }
    return all;
}

void expectPoint(const Point& actual, const std::string& expected) {
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(actual[i], points(expected)[0][i], 1e-9) << "coordinate " << i;
    }
}

TEST(FootOnLine, isBetweenTheEndsOrBeyondThem) {
    const struct {
        const char* name;
        const char* pointAndLine;
        short result;
        double distance;
        const char* foot;
    } cases[] = {
        {"between", "4,3,0 0,0,0 10,0,0", 1, 3.0, "4,0,0"},
        {"far from the origin", "5,6,9 1,2,3 11,2,3", 1, std::sqrt(52.0), "5,2,3"},
        {"on the end", "10,-2,0 0,0,0 10,0,0", 1, 2.0, "10,0,0"},
        {"past the end", "10.00000000000001,3,0 0,0,0 10,0,0", 0, 3.0, "10,0,0"},
        {"steep line, compared by y", "3,5,0 0,0,0 0,10,0", 1, 3.0, "0,5,0"},
        {"upright, by z", "3,0,11 0,0,0 0,0,10", 0, 3.0, "0,0,11"},
        {"in space", "1,1,4 0,0,0 5,5,5", 1, std::sqrt(6.0), "2,2,2"},
        {"one point", "1,1,1 0,0,0 0,1e-11,0", -1, std::sqrt(3.0), "0,0,0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const std::vector<Point> p = points(c.pointAndLine);
        double distance = -1.0;
        Point foot{9, 9, 9};
        EXPECT_EQ(gx_ptlndist(p[0].data(), p[1].data(), p[2].data(), &distance, foot.data()),
                  c.result);
        EXPECT_NEAR(distance, c.distance, 1e-12);
        expectPoint(foot, c.foot);
    }
    double distance = 5.0;
    Point foot{9, 9, 9};
    EXPECT_EQ(gx_ptlndist(foot.data(), nullptr, foot.data(), &distance, foot.data()), -2);
    EXPECT_EQ(distance, 0.0);
    expectPoint(foot, "0,0,0");
}

constexpr const char* kUnwritten = "7,8,9";

struct Case {
    const char* name;
    const char* first;
    const char* second;
    int result;
    const char* out;
};

template <class Cross>
void check(Cross cross, std::initializer_list<Case> cases, double z = 9) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::vector<Point> a = points(c.first);
        const std::vector<Point> b = points(c.second);
        Point out{7, 8, z};
        EXPECT_EQ(cross(a[0].data(), a[1].data(), b[0].data(), b[1].data(), out.data()), c.result);
        expectPoint(out, c.out);
    }
}

TEST(PlanCrossing, isOnBothSegmentsOneOrNone) {
    // With coordinates of 1e9 the relative comparison with the ends, at 1e-11, accepts 0.01 where
    // the product doesn't. It looks at the z that the output held before.
    constexpr const char* kFar = "999999900,1e9,0 1e9,1e9,0";
    constexpr const char* kFarUp = "1000000000.0078125,999999990,0 1000000000.0078125,1000000010,0";
    constexpr const char* kFarOut = "1000000000.0078125,1e9,0";
    check(gx_linexline,
          {
              {"both", "0,0,0 10,0,0", "4,-5,0 4,5,0", 3, "4,0,0"},
              {"second only", "5,0,0 10,0,0", "4,-5,0 4,5,0", 2, "4,0,0"},
              {"end to end", "0,0,0 10,0,0", "10,0,0 10,9,0", 3, "10,0,0"},
              {"z of the second", "0,0,0 10,0,0", "4,-5,2 4,5,6", 3, "4,0,4"},
              // On the first only, z is the first line's: 4/10 of the way from 1 to 6.
              {"z of the first", "0,0,1 10,0,6", "4,1,9 4,5,9", 1, "4,0,3"},
              {"z of a first elsewhere", "2,1,1 12,1,6", "6,2,9 6,5,9", 1, "6,1,3"},
              {"z of a steep first", "0,0,1 0,10,6", "1,4,9 5,4,9", 1, "0,4,3"},
              // Beyond the second's end its line goes on: y 0 is 1/4 of its length before it.
              {"produced", "5,0,1 10,0,6", "4,1,9 4,5,5", 0, "4,0,10"},
              {"slanting", "0,0,0 8,4,0", "0,6,0 3,0,0", 3, "2.4,1.2,0"},
              {"far", kFar, kFarUp, 3, kFarOut},
              // The product of the distances to both ends bounds "on the segment" at 1e-7.
              {"just past the end", "0,0,0 1,0,0", "1.000000099,-1,0 1.000000099,1,0", 3,
               "1.000000099,0,0"},
              {"past the end", "0,0,0 1,0,0", "1.000000101,-1,0 1.000000101,1,0", 2,
               "1.000000101,0,0"},
              {"just before the start", "0,0,0 1,0,0", "-0.000000099,-1,0 -0.000000099,1,0", 3,
               "-0.000000099,0,0"},
          },
          0);
    check(gx_linexline, {{"far", kFar, kFarUp, 2, kFarOut}}, 5);
    check(gx_linexline,
          {
              {"parallel", "0,0,0 10,0,0", "0,1,0 10,1,0", -1, kUnwritten},
              {"first a point", "1,1,0 1,1,0", "0,0,0 5,0,0", -1, kUnwritten},
              {"second a point", "0,0,0 5,0,0", "1,1,0 1,1,0", -1, kUnwritten},
              {"at the bound", "0,0,0 1,0,0", "0,0,0 1,1e-11,0", -1, kUnwritten},
              // Long enough for the determinant, but dx/dy is 1 and 1 + 5e-12, too close by 1e-11.
              {"slopes", "0,0,0 1e3,1e3,0", "0,0,0 1000.000000005,1e3,0", -1, kUnwritten},
          });
}

TEST(SpaceCrossing, ofVerticals) {
    check(linexline3d,
          {
              {"apart in plan", "0,0,0 0,0,5", "1,0,0 1,0,5", -1, kUnwritten},
              {"apart in y", "0,0,0 0,0,5", "0,1,0 0,1,5", -1, kUnwritten},
              {"touching, first below", "1,2,0 1,2,5", "1,2,5 1,2,9", 3, "1,2,5"},
              {"touching, first above", "1,2,5 1,2,9", "1,2,0 1,2,5", 3, "1,2,5"},
              {"overlapping", "1,2,0 1,2,6", "1,2,9 1,2,4", -2, "1,2,4"},
              {"gap", "1,2,0 1,2,3", "1,2,5 1,2,9", -3, kUnwritten},
              {"second: both", "0,0,0 8,0,8", "2,0,0 2,0,5", 3, "2,0,2"},
              {"second up to the first", "1,2,1 9,6,1", "5,4,0 5,4,1", 3, "5,4,1"},
              {"above the second", "0,0,0 8,0,8", "6,0,0 6,0,5", 1, "6,0,6"},
              {"past the first", "0,0,0 8,0,8", "9,0,0 9,0,20", 2, "9,0,9"},
              {"off the line", "0,0,1 8,4,1", "2,2,0 2,2,5", -4, kUnwritten},
              {"beside a line along y", "2,0,0 2,8,8", "3,4,0 3,4,9", -4, kUnwritten},
              {"beside a line along x", "0,2,0 8,2,8", "4,3,0 4,3,9", -4, kUnwritten},
              {"at the first's end", "0,0,1 8,4,1", "8,4,0 8,4,5", 3, "8,4,1"},
              // Off the line, but equal to the first's end for coordinates of a million.
              {"far", "1e6,1e6,0 1000001,1000001,1", "1000001.05,1000001,0 1000001.05,1000001,5", 3,
               "1000001.05,1000001,1.05"},
              {"first along y", "2,0,0 2,8,8", "2,4,0 2,4,9", 3, "2,4,4"},
              // No mirror: a first vertical always counts as met, and its heights decide for the
              // second.
              {"first: both", "2,0,0 2,0,5", "0,0,0 8,0,8", 3, "2,0,2"},
              {"above the first", "6,0,0 6,0,5", "0,0,0 8,0,8", 1, "6,0,6"},
              {"past the second", "9,0,0 9,0,20", "0,0,0 8,0,8", 1, "9,0,9"},
              {"off the second", "2,2,0 2,2,5", "0,0,1 8,4,1", -4, kUnwritten},
          });
}

TEST(SpaceCrossing, ofParallels) {
    check(linexline3d, {
                           {"apart in height", "0,0,0 4,0,0", "0,0,1 4,0,1", -1, kUnwritten},
                           {"other slope", "0,0,0 4,0,0", "5,0,1 9,0,2", -1, kUnwritten},
                           {"touching at the end", "0,0,0 4,0,0", "6,0,0 4,0,0", 3, "4,0,0"},
                           {"end on the other start", "0,0,0 4,0,0", "4,0,0 6,0,0", 3, "4,0,0"},
                           {"touching at the start", "0,0,0 4,0,0", "0,0,0 -3,0,0", 3, "0,0,0"},
                           {"start on the other end", "0,0,0 4,0,0", "-3,0,0 0,0,0", 3, "0,0,0"},
                           {"touching at a height", "0,1,5 4,1,5", "6,1,5 4,1,5", 3, "4,1,5"},
                           {"b1 inside", "0,0,0 4,0,0", "3,0,0 9,0,0", -2, "3,0,0"},
                           {"b2 inside", "0,0,0 4,0,0", "9,0,0 3,0,0", -2, "3,0,0"},
                           // Neither end of a longer second lies inside, and that reads as a gap.
                           {"second longer", "0,0,0 4,0,0", "-1,0,0 9,0,0", -3, kUnwritten},
                           {"gap", "0,0,0 4,0,0", "6,0,0 9,0,0", -3, kUnwritten},
                       });
}

TEST(SpaceCrossing, ofLinesThatCrossInPlan) {
    check(linexline3d,
          {
              {"both", "0,0,0 8,8,8", "0,8,4 8,0,4", 3, "4,4,4"},
              {"both elsewhere", "1,2,1 9,10,9", "1,10,5 9,2,5", 3, "5,6,5"},
              {"at different heights", "0,0,0 8,8,0", "0,8,1 8,0,1", -4, kUnwritten},
              {"sloped second misses", "4,-5,2 4,5,2", "0,0,0 8,0,2", -4, kUnwritten},
              {"sloped steep first misses", "4,-5,0 4,5,9", "0,0,2 8,0,2", -4, kUnwritten},
              // Heights are compared relatively, at 1e-7.
              {"height within", "0,0,1 8,8,1", "0,8,1.00000005 8,0,1.00000005", 3, "4,4,1"},
              {"height beyond", "0,0,1 8,8,1", "0,8,1.0000002 8,0,1.0000002", -4, kUnwritten},
              {"second only", "5,0,0 8,0,0", "4,-1,0 4,5,0", 2, "4,0,0"},
              {"first only", "0,0,0 8,0,0", "4,1,0 4,5,0", 1, "4,0,0"},
              {"neither", "5,0,0 8,0,0", "4,1,0 4,5,0", 0, "4,0,0"},
              {"first along y", "4,-5,3 4,5,3", "2,1,3 8,4,3", 3, "4,2,3"},
              {"second along y", "0,0,3 8,4,3", "4,-5,3 4,5,3", 3, "4,2,3"},
              {"both slanting", "1,2,0 9,6,0", "1,8,0 4,2,0", 3, "3.4,3.2,0"},
          });
}

} // namespace
