#include "PlanView.h"
#include "RvexDocContext.h"

#include <cmath>

#include <gtest/gtest.h>

namespace orvex {
namespace {

struct ExtentsCase {
    const char* what;
    PlanBox box;
    double height;
    PlanPoint center;
};

TEST(PlanView, ShowsExtentsWithATenthMore) {
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

TEST(PlanView, FitsExtentsIntoAnyFrame) {
    PlanView view(100, 400);
    view.zoomTo({{0, 0}, {10, 10}});
    EXPECT_DOUBLE_EQ(view.viewHeight(), 44.0); // 1.1 * 10 wide in a quarter of the height
}

TEST(PlanView, TurnsPixelsIntoUnits) {
    PlanView view(1600, 1200);
    view.setView({0, 0}, 2400);
    double length = 3.0;
    view.pixelsToDisplayUnits(length, nullptr, nullptr, 1);
    EXPECT_DOUBLE_EQ(length, 6.0);
    for (double bad : {0.0, -1.0, std::nan(""), HUGE_VAL}) {
        view.pixelsToDisplayUnits(bad, nullptr, nullptr, 1);
        EXPECT_DOUBLE_EQ(bad, 2.0);
    }
    const double world[3] = {12.5, -7, 99};
    double display[2] = {0, 0};
    view.worldToDisplay(world, display);
    EXPECT_EQ(display[0], 12.5);
    EXPECT_EQ(display[1], -7.0);
}

TEST(PlanView, PixelsAndPlanAreInverse) {
    PlanView view(800, 600);
    view.setView({100, 50}, 300); // half a unit a pixel
    EXPECT_EQ(view.toPixels({100, 50}), (PlanPoint{400, 300}));
    EXPECT_EQ(view.toPixels({110, 60}), (PlanPoint{420, 280})) << "y upwards in the plan";
    EXPECT_EQ(view.toPlan({420, 280}), (PlanPoint{110, 60}));
}

TEST(PlanView, RefusesViewsThatShowNothing) {
    PlanView view(0, -5); // brought up to a pixel
    view.setView({1, 2}, 30);
    for (const double height : {0.0, -3.0, std::nan(""), HUGE_VAL}) {
        view.setView({0, 0}, height);
    }
    view.setView({std::nan(""), 0}, 5);
    EXPECT_EQ(view.center(), (PlanPoint{1, 2}));
    EXPECT_EQ(view.unitsPerPixel(), 30.0);
}

TEST(ActiveDocument, IsWhatWasSetLast) {
    class Context final : public RvexDocContext {
        RvexDocDataContext* rvexDocDataContext() override { return nullptr; }
    } context;
    EXPECT_EQ(GetRvexAppCtxActiveDocContext(), nullptr);
    EXPECT_EQ(setActiveDocContext(&context), nullptr);
    EXPECT_EQ(GetRvexAppCtxActiveDocContext(), &context);
    EXPECT_EQ(setActiveDocContext(nullptr), &context);
}

} // namespace
} // namespace orvex
