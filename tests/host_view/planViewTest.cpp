#include "PlanView.h"

#include <cmath>

#include <gtest/gtest.h>

namespace orvex {
namespace {

struct ExtentsCase {
    const char* what = "";
    PlanBox box;
    double height = 0.0;
    PlanPoint center;
};

TEST(PlanView, showsExtentsWithATenthMore) {
    const ExtentsCase cases[] = {
        {"high", {{0, 0}, {10, 100}}, 110.0, {5, 50}},
        {"wide", {{0, 0}, {200, 100}}, 165.0, {100, 50}}, // 1.1 * 0.75 * 200
        {"nothing", {}, 10.0, {0, 0}},
        {"a single point", {{3, 4}, {3, 4}}, 10.0, {3, 4}},
    };
    for (const ExtentsCase& each : cases) {
        PlanView view(1600, 1200);
        view.setView({77, 77}, 5);
        view.zoomTo(each.box);
        EXPECT_DOUBLE_EQ(view.viewHeight(), each.height) << each.what;
        EXPECT_EQ(view.center(), each.center) << each.what;
    }
}

TEST(PlanView, turnsPixelsIntoUnits) {
    PlanView view(1600, 1200);
    view.setView({0, 0}, 2400);
    double length = 3.0;
    view.pixelsToDisplayUnits(length, nullptr, nullptr, 1);
    EXPECT_DOUBLE_EQ(length, 6.0);
    for (double bad : {0.0, -1.0, std::nan(""), HUGE_VAL}) {
        view.pixelsToDisplayUnits(bad, nullptr, nullptr, 1);
        EXPECT_DOUBLE_EQ(bad, 2.0);
    }
    view.setView({100, 50}, 600);
    EXPECT_EQ(view.toPixels({110, 60}), (PlanPoint{820, 580})) << "y upwards in the plan";
    EXPECT_EQ(view.toPlan({820, 580}), (PlanPoint{110, 60}));
}

TEST(PlanView, refusesViewsThatShowNothing) {
    PlanView view(0, -5); // brought up to a pixel
    view.setView({1, 2}, 30);
    for (const double bad : {0.0, -3.0, std::nan(""), HUGE_VAL}) {
        view.setView({0, 0}, bad);
    }
    view.setView({std::nan(""), 0}, 5);
    EXPECT_EQ(view.center(), (PlanPoint{1, 2}));
    EXPECT_EQ(view.unitsPerPixel(), 30.0);
}

} // namespace
} // namespace orvex
