#include "lineMath.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

struct Case {
    const char* name;
    double a1[3], a2[3], b1[3], b2[3];
    int result;
    double out[3]; // {7, 8, 9}: unwritten
};

void check(std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        double out[3] = {7, 8, 9};
        EXPECT_EQ(linexline3d(c.a1, c.a2, c.b1, c.b2, out), c.result) << c.name;
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(out[i], c.out[i], 1e-9) << c.name << ", coordinate " << i;
        }
    }
}

TEST(SpaceCrossing, OfTwoVerticals) {
    check({
        {"apart in plan", {0, 0, 0}, {0, 0, 5}, {1, 0, 0}, {1, 0, 5}, -1, {7, 8, 9}},
        {"touching, first below", {1, 2, 0}, {1, 2, 5}, {1, 2, 5}, {1, 2, 9}, 3, {1, 2, 5}},
        {"overlapping", {1, 2, 0}, {1, 2, 6}, {1, 2, 9}, {1, 2, 4}, -2, {1, 2, 4}},
        {"gap", {1, 2, 0}, {1, 2, 3}, {1, 2, 5}, {1, 2, 9}, -3, {7, 8, 9}},
    });
}

TEST(SpaceCrossing, OfParallels) {
    check({
        {"apart in height", {0, 0, 0}, {4, 0, 0}, {0, 0, 1}, {4, 0, 1}, -1, {7, 8, 9}},
        // In plan one line, in space not: b1 is off the first.
        {"one plan line, other slope", {0, 0, 0}, {4, 0, 0}, {5, 0, 1}, {9, 0, 2}, -1, {7, 8, 9}},
        {"touching at the end", {0, 0, 0}, {4, 0, 0}, {6, 0, 0}, {4, 0, 0}, 3, {4, 0, 0}},
        {"touching at the start", {0, 0, 0}, {4, 0, 0}, {0, 0, 0}, {-2, 0, 0}, 3, {0, 0, 0}},
        {"b1 inside", {0, 0, 0}, {4, 0, 0}, {3, 0, 0}, {9, 0, 0}, -2, {3, 0, 0}},
        {"b2 inside", {0, 0, 0}, {4, 0, 0}, {9, 0, 0}, {3, 0, 0}, -2, {3, 0, 0}},
        // The second covers the first: neither of its ends lies inside, and that reads as a gap.
        {"second longer", {0, 0, 0}, {4, 0, 0}, {-1, 0, 0}, {9, 0, 0}, -3, {7, 8, 9}},
        {"gap", {0, 0, 0}, {4, 0, 0}, {6, 0, 0}, {9, 0, 0}, -3, {7, 8, 9}},
    });
}

TEST(SpaceCrossing, OfLinesThatCrossInPlan) {
    check({
        {"both", {0, 0, 0}, {8, 8, 8}, {0, 8, 4}, {8, 0, 4}, 3, {4, 4, 4}},
        {"at different heights", {0, 0, 0}, {8, 8, 0}, {0, 8, 1}, {8, 0, 1}, -4, {7, 8, 9}},
        {"sloped second misses", {0, 0, 0}, {8, 8, 0}, {0, 8, 0}, {8, 0, 2}, -4, {7, 8, 9}},
        {"level sloped second misses", {4, -5, 2}, {4, 5, 2}, {0, 0, 0}, {8, 0, 2}, -4, {7, 8, 9}},
        // Heights are compared relatively, at 1e-7.
        {"height within", {0, 0, 1}, {8, 8, 1}, {0, 8, 1 + 5e-8}, {8, 0, 1 + 5e-8}, 3, {4, 4, 1}},
        {"height beyond", {0, 0, 1}, {8, 8, 1}, {0, 8, 1 + 2e-7}, {8, 0, 1 + 2e-7}, -4, {7, 8, 9}},
        {"first only", {0, 0, 0}, {8, 0, 0}, {4, 1, 0}, {4, 5, 0}, 1, {4, 0, 0}},
        {"second only", {5, 0, 0}, {8, 0, 0}, {4, -1, 0}, {4, 5, 0}, 2, {4, 0, 0}},
        {"neither", {5, 0, 0}, {8, 0, 0}, {4, 1, 0}, {4, 5, 0}, 0, {4, 0, 0}},
        {"first upright in plan", {4, -5, 3}, {4, 5, 3}, {0, 0, 3}, {8, 4, 3}, 3, {4, 2, 3}},
    });
}

TEST(SpaceCrossing, OfASecondVertical) {
    constexpr double m = 1e6;
    constexpr double x = m + 1.05;
    check({
        {"both", {0, 0, 0}, {8, 0, 8}, {2, 0, 0}, {2, 0, 5}, 3, {2, 0, 2}},
        {"above the second", {0, 0, 0}, {8, 0, 8}, {6, 0, 0}, {6, 0, 5}, 1, {6, 0, 6}},
        {"past the first", {0, 0, 0}, {8, 0, 8}, {9, 0, 0}, {9, 0, 20}, 2, {9, 0, 9}},
        {"on a slant", {0, 0, 1}, {8, 4, 1}, {2, 1, 0}, {2, 1, 5}, 3, {2, 1, 1}},
        {"off the line", {0, 0, 1}, {8, 4, 1}, {2, 2, 0}, {2, 2, 5}, -4, {7, 8, 9}},
        {"at the first's end", {0, 0, 1}, {8, 4, 1}, {8, 4, 0}, {8, 4, 5}, 3, {8, 4, 1}},
        // Off the line, but equal to the first's end for coordinates of a million.
        {"far", {m, m, 0}, {m + 1, m + 1, 1}, {x, m + 1, 0}, {x, m + 1, 5}, 3, {x, m + 1, 1.05}},
        {"first along y", {2, 0, 0}, {2, 8, 8}, {2, 4, 0}, {2, 4, 9}, 3, {2, 4, 4}},
    });
}

// The first line always counts as met here, and the heights of the first decide for the second.
TEST(SpaceCrossing, OfAFirstVerticalIsNoMirror) {
    check({
        {"both", {2, 0, 0}, {2, 0, 5}, {0, 0, 0}, {8, 0, 8}, 3, {2, 0, 2}},
        {"above the first", {6, 0, 0}, {6, 0, 5}, {0, 0, 0}, {8, 0, 8}, 1, {6, 0, 6}},
        {"past the second", {9, 0, 0}, {9, 0, 20}, {0, 0, 0}, {8, 0, 8}, 1, {9, 0, 9}},
        {"off the line", {2, 2, 0}, {2, 2, 5}, {0, 0, 1}, {8, 4, 1}, -4, {7, 8, 9}},
    });
}

} // namespace
