#include "arcs.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

namespace orvex {
namespace {

double distance(const KdGePoint3d& a, const KdGePoint3d& b) {
    return (a - b).length();
}

// How far the chain's pieces leave a circle, of its radius.
double greatestError(const std::vector<KdGePoint3d>& chain, const KdGePoint3d& center,
                     double radius) {
    double error = 0.0;
    for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
        const KdGePoint3d middle = chain[i] + (chain[i + 1] - chain[i]) * 0.5;
        error = std::max({error, std::abs(distance(chain[i], center) - radius),
                          std::abs(distance(middle, center) - radius)});
    }
    return error / radius;
}

TEST(Arcs, keepToTheCircleAtAnySize) {
    for (const double radius : {1e-6, 1.0, 1e9}) {
        const ConicShape circle{{5, 6, 0}, {radius, 0, 0}, {0, radius, 0}};
        EXPECT_LT(greatestError(conicChain(circle), circle.center, radius), 1.0 / 4000) << radius;
    }
}

struct BulgeCase {
    double bulge = 0.0;
    KdGePoint3d top; // middle of the arc from (0, 0) to (2, 0)
};

TEST(Arcs, bulgesTurnLeftWhenPositive) {
    // The arc's height is bulge * half the chord, to the right of the way for a left turn.
    for (const BulgeCase& each : {BulgeCase{1.0, {1, -1, 0}}, BulgeCase{-1.0, {1, 1, 0}},
                                  BulgeCase{0.5, {1, -0.5, 0}}, BulgeCase{-3.0, {1, 3, 0}}}) {
        const PolylineShape shape{{{{0, 0, 0}, each.bulge}, {{2, 0, 0}, 0.0}}, false};
        const auto chain = polylineChain(shape);
        EXPECT_EQ(chain.front(), (KdGePoint3d{0, 0, 0}));
        EXPECT_EQ(chain.back(), (KdGePoint3d{2, 0, 0}));
        double nearest = 1e9;
        for (const KdGePoint3d& point : chain) {
            nearest = std::min(nearest, distance(point, each.top));
        }
        EXPECT_LT(nearest, 0.07) << each.bulge; // half a piece of the largest, radius 5/3
    }
}

TEST(Arcs, oddBulgesAreStraight) {
    for (const double bulge : {std::nan(""), HUGE_VAL, 1e300, 1e-300}) {
        const PolylineShape shape{{{{0, 0, 0}, bulge}, {{2, 0, 0}, 0.0}}, true};
        EXPECT_EQ(polylineChain(shape).size(), 3U) << bulge;
    }
    EXPECT_TRUE(polylineChain({}).empty());
}

} // namespace
} // namespace orvex
