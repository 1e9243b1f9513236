#include "joinSteps.h"
#include "planSamples.h"

#include <gmock/gmock.h>

namespace orvex::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

WallSketch wall(PlanVector from, PlanVector to, double width = 200.0) {
    return {{from, to}, {width / 2.0, -width / 2.0}};
}

const WallSketch kBar = wall({-3000, 0}, {3000, 0});
const WallSketch kUpright = wall({0, -3000}, {0, 3000});

TEST(PlaceReasons, whatAPlaceIsLeftForIsTold) {
    struct Case {
        JoinReason reason;
        std::vector<WallSketch> plan;
        std::vector<double> stops; // of both elements of the first wall
    };
    WallSketch single = kUpright;
    single.offsets = {0.0};
    WallSketch coinciding = kUpright;
    coinciding.offsets = {50.0, 100.0, 50.0};
    WallSketch inside = kUpright;
    inside.offsets = {50.0, -100.0, 100.0};
    const std::vector<Case> cases{
        {JoinReason::singleElement, {kBar, single}, {0}},
        {JoinReason::outerElements, {kBar, coinciding}, {0}},
        {JoinReason::outerElements, {kBar, inside}, {0}},
        {JoinReason::gap, {kBar, kUpright}, {0, 2500, 3500}},
        {JoinReason::gap, {kBar, wall({0, 3000}, {0, 20})}, {0, 2950, 3000}},
        {JoinReason::none, {kBar, kUpright}, {0, 3300, 3500}},
        {JoinReason::none, {kBar, kUpright}, {0, 2900, 3100}}, // as it will be
        {JoinReason::bothEnds, {kBar, wall({0, -120}, {0, 130})}, {0}},
        {JoinReason::tooAcute, {wall({9000, 0}, {0, 0}), wall({0, 0}, {8863, 1563})}, {0}},
        {JoinReason::shortLeg, {wall({0, 0}, {-4000, 0}), wall({0, 0}, {4000, 70})}, {0}},
        {JoinReason::none, {wall({0, 0}, {-12000, 0}), wall({0, 0}, {12000, 210})}, {0}},
        {JoinReason::shortLeg, {wall({-500, 0}, {500, 0}), wall({3864, 1035}, {0, 0})}, {0}},
    };
    for (const Case& sample : cases) {
        std::vector<MlineContent> contents;
        for (const WallSketch& sketch : sample.plan) {
            contents.push_back(drawWall(sketch));
        }
        setStops(contents[0], 0, 0, sample.stops);
        setStops(contents[0], 0, 1, sample.stops);
        const JoinPlan plan = planJoins(wallsOf(contents), {});
        SCOPED_TRACE(joinReasonCode(sample.reason));
        ASSERT_EQ(plan.places.size(), 1U);
        EXPECT_EQ(joinReasonCode(plan.places[0].reason), joinReasonCode(sample.reason));
    }
}

TEST(PlaceReasons, withoutItsStyleAWallIsOnlyLookedAt) {
    std::vector<MlineContent> contents{drawWall(kBar), drawWall(kUpright)};
    contents[1].style = {};
    EXPECT_EQ(planJoins(wallsOf(contents), {}).places.at(0).reason, JoinReason::style);
    contents[1].style = contents[0].style;
    playIdeally(planJoins(wallsOf(contents), {}), contents);
    contents[1].style = {};
    EXPECT_EQ(planJoins(wallsOf(contents), {}).places.at(0).result, PlaceResult::already);
}

TEST(PlaceReasons, theOtherPlaceIsNamed) {
    const std::vector<JoinWall> walls =
        wallsOf(std::vector{kBar, wall({-100, 3000}, {-100, 100}), wall({1000, 2000}, {-90, 100})});
    for (const JoinPlace& place : planJoins(walls, {}).places) {
        EXPECT_EQ(place.result, PlaceResult::left);
    }
    JoinPlace place;
    place.reason = JoinReason::reach;
    place.others = {0, 2};
    EXPECT_EQ(joinReasonText(place, walls), "the joint reaches into the one of 100, 102");
    place.reason = JoinReason::shortLeg;
    place.has = 250.5;
    place.needs = 380;
    EXPECT_THAT(joinReasonText(place, walls), HasSubstr("250.5"));
    EXPECT_THAT(joinReasonText(place, walls), HasSubstr("380"));
}

TEST(PlaceReasons, theToleranceDecidesOnEndsAndNothingElse) {
    const std::vector<WallSketch> plan{kBar, wall({0, 3000}, {0, 130}),
                                       wall({1000, 100}, {1000, 3000})};
    const auto countsAt = [&](double tolerance) {
        return countsOf(
            planJoins(wallsOf(plan), {tolerance, JoinKind::open, JoinKind::open, true}));
    };
    EXPECT_EQ(countsAt(0.0), "0/1/0/0"); // exactly on the near line
    EXPECT_EQ(countsAt(29.0), "0/1/0/0");
    EXPECT_EQ(countsAt(31.0), "0/2/0/0");
    // Every end is at every wall now: none is pulled anywhere.
    EXPECT_TRUE(
        planJoins(wallsOf(plan), {1e9, JoinKind::open, JoinKind::open, true}).order.empty());
}

TEST(PlaceReasons, kindsThatNobodyAskedForAreCountedApart) {
    const std::vector<WallSketch> plan{kBar, kUpright, wall({1000, 3000}, {1000, 0}),
                                       wall({3000, -2000}, {3000, 0})};
    const auto results = [&](const JoinOptions& options) {
        std::vector<std::string_view> words;
        for (const JoinPlace& place : planJoins(wallsOf(plan), options).places) {
            words.push_back(placeResultWord(place.result));
        }
        return words;
    };
    EXPECT_THAT(results({std::nullopt, JoinKind::none, JoinKind::open, true}),
                ElementsAre("unasked", "planned", "planned"));
    EXPECT_THAT(results({std::nullopt, JoinKind::open, JoinKind::none, false}),
                ElementsAre("planned", "unasked", "unasked"));
}

TEST(JoinSteps, theWiderWallStaysOnTopAndOfEqualOnesTheFirst) {
    for (const double width : {100.0, 200.0, 400.0}) {
        const std::vector<JoinWall> walls =
            wallsOf(std::vector{kBar, wall({0, -3000}, {0, 3000}, width)});
        const JoinPlan plan =
            planJoins(walls, {std::nullopt, JoinKind::closed, JoinKind::open, true});
        ASSERT_EQ(plan.order.size(), 1U);
        EXPECT_EQ(plan.places[0].second.wall, width > 200.0 ? 1U : 0U);
        const auto steps = joinSteps(plan.places[0], walls[plan.places[0].first.wall],
                                     walls[plan.places[0].second.wall]);
        ASSERT_TRUE(steps);
        EXPECT_EQ(steps->tool, "CC");
        EXPECT_EQ(steps->first.wall, plan.places[0].first.wall);
    }
}

// An end on the axis, or a hair beside it, is first moved a quarter of the bar's width short.
TEST(JoinSteps, endsInTheDoubtfulPlaceAreMovedShort) {
    for (const double end : {0.0, 1e-9, -1e-6, 20.0}) {
        const std::vector<JoinWall> walls = wallsOf(std::vector{kBar, wall({0, 3000}, {0, end})});
        const JoinPlan plan = planJoins(walls, {});
        ASSERT_EQ(plan.order.size(), 1U);
        const auto steps = joinSteps(plan.places[0], walls[1], walls[0]);
        ASSERT_TRUE(steps);
        ASSERT_EQ(steps->moves.size(), 1U);
        EXPECT_NEAR(steps->moves[0].to.y, 50.0, 1e-9);
        EXPECT_LT(steps->moves[0].pick.point.y, 1500.0); // nearer to the end that is moved
        EXPECT_GT(steps->first.point.y, 200.0);          // on the part that stays
    }
    const std::vector<JoinWall> walls = wallsOf(std::vector{kBar, wall({0, 3000}, {0, 100})});
    EXPECT_TRUE(joinSteps(planJoins(walls, {}).places[0], walls[1], walls[0])->moves.empty());
}

// Bars come before the stems that end on them, whatever the drawing order; crosses come last.
TEST(JoinOrder, barsComeBeforeTheirStems) {
    std::vector<WallSketch> plan{wall({2000, 0}, {2000, 1500}), wall({0, 1500}, {3000, 1500}),
                                 wall({0, -3000}, {0, 3000}), wall({1000, -1000}, {1000, 4000})};
    std::sort(plan.begin(), plan.end(),
              [](const auto& a, const auto& b) { return a.points[0].x < b.points[0].x; });
    do {
        const std::vector<JoinWall> walls = wallsOf(plan);
        const JoinPlan joins = planJoins(walls, {});
        std::vector<double> order; // of the places along x
        for (const unsigned index : joins.order) {
            order.push_back(std::round(joins.places[index].at.x));
        }
        EXPECT_THAT(order, ElementsAre(0.0, 2000.0, 1000.0));
    } while (std::next_permutation(plan.begin(), plan.end(), [](const auto& a, const auto& b) {
        return std::pair(a.points[0].x, a.points[0].y) < std::pair(b.points[0].x, b.points[0].y);
    }));
}

} // namespace

} // namespace orvex::testing
