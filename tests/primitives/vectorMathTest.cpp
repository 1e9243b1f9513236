#include "vectorMath.h"

#include <gtest/gtest.h>

using namespace mledit;

namespace {

const double kOrigin[3] = {0.0, 0.0, 0.0};

TEST(VectorMath, distancesAreInSpaceAndNullReadsAsZero) {
    const double p[3] = {2.0, 3.0, 6.0}; // 4 + 9 + 36 = 49
    EXPECT_EQ(tklengine_distance(kOrigin, p), 7.0);
    EXPECT_EQ(IMgx_dist3d(p, kOrigin), 7.0);
    EXPECT_EQ(tklengine_distance(nullptr, p), 0.0);
}

TEST(VectorMath, anglesAreInPlanFromZeroToAFullTurn) {
    struct {
        double to[3];
        double angle;
    } const cases[] = {
        {{0, 2, 9}, kPi / 2},
        {{1, -1, 0}, 1.75 * kPi},
        {{1e-10, -1e-10, 5}, 0.0}, // both within the tolerance: no direction
        {{0, -1.1e-10, 0}, 1.5 * kPi},
    };
    for (const auto& c : cases) {
        EXPECT_DOUBLE_EQ(tklengine_angle(kOrigin, c.to), c.angle)
            << c.to[0] << " " << c.to[1] << " " << c.to[2];
    }
    EXPECT_EQ(tklengine_angle(nullptr, kOrigin), 0.0);
}

TEST(VectorMath, aCrossProductMayOverwriteItsInput) {
    double a[3] = {1.0, 2.0, 3.0};
    const double b[3] = {4.0, 5.0, 6.0};
    gx_crossproduct(a, b, a);
    // (2*6 - 3*5, 3*4 - 1*6, 1*5 - 2*4)
    EXPECT_EQ(a[0], -3.0);
    EXPECT_EQ(a[1], 6.0);
    EXPECT_EQ(a[2], -3.0);
}

TEST(VectorMath, theDeterminantIsTheSignedPlanArea) {
    const C3Point east(2.0, 0.0, 0.0);
    const C3Point north(0.0, 3.0, 0.0);
    EXPECT_EQ(Determinant(east, north, nullptr), 6.0);
    // Rows (1,2,3), (4,5,6), (7,8,10): 50 + 84 + 96 - 105 - 80 - 48 = -3.
    C3Point normal(7.0, 8.0, 10.0);
    EXPECT_EQ(Determinant(C3Point(1, 2, 3), C3Point(4, 5, 6), &normal), -3.0);
}

} // namespace
