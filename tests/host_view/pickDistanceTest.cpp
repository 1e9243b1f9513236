#include "pickDistance.h"

#include <cmath>

#include <gmock/gmock.h>

namespace orvex {
namespace {

struct PickCase {
    const char* what;
    std::vector<PlanPoint> points;
    double distance; // from (10, 20) with a reach of 1; below 0: not found
};

TEST(PickDistance, findsWhatPassesThroughTheSquare) {
    const PickCase cases[] = {
        {"aside", {{0, 20.5}, {20, 20.5}}, 0.5},
        {"on the edge", {{0, 21}, {20, 21}}, 1.0},
        {"beyond the edge", {{0, 21.001}, {20, 21.001}}, -1.0},
        // Of slope -1 through (11, 20.9) the distance to (10, 20) is 1.9 / sqrt(2) = 1.3435: beyond
        // a circle of radius 1, inside of the square's corner.
        {"through a corner, outside of the circle",
         {{10.4, 21.5}, {11.4, 20.5}},
         1.9 / std::sqrt(2.0)},
        {"past the corner", {{10.5, 21.6}, {11.6, 20.5}}, -1.0},
        {"ends inside", {{0, 20}, {9.5, 20}}, 0.5},
        {"a dot inside", {{10.3, 20.4}}, 0.5},
        {"a piece of no length", {{10.3, 20.4}, {10.3, 20.4}}, 0.5},
        {"the nearest of a chain", {{9.5, 0}, {9.5, 40}, {10.25, 40}, {10.25, 0}}, 0.25},
        {"both ends far off on the same side", {{-1e9, 21}, {1e9, 22}}, -1.0},
    };
    for (const PickCase& each : cases) {
        Appearance appearance;
        appearance.strokes.push_back({.points = each.points});
        const auto found = pickDistance(appearance, {10, 20}, 1.0);
        ASSERT_EQ(found.has_value(), each.distance >= 0) << each.what;
        if (found) {
            EXPECT_NEAR(*found, each.distance, 1e-12) << each.what;
        }
    }
}

TEST(PickDistance, capsAndJointsArentLines) {
    for (const StrokeRole role : {StrokeRole::cap, StrokeRole::joint}) {
        Appearance appearance;
        appearance.strokes.push_back({.points = {{0, 0}, {1, 0}}, .role = role});
        appearance.fills.push_back({.outline = {{-1, -1}, {1, -1}, {1, 1}}});
        EXPECT_FALSE(pickDistance(appearance, {0, 0}, 1.0));
    }
}

} // namespace
} // namespace orvex
