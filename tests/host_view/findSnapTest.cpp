#include "findSnap.h"
#include "MlineSample.h"
#include "Scene.h"
#include "TestDrawing.h"
#include "snapWords.h"

#include <cmath>

#include <gmock/gmock.h>

namespace orvex::testing {

namespace {

constexpr double kThird = 1.0 / 3.0;

// Two lines that cross in (50, 0.1), a quarter circle around (0, 100) from (30, 100) to (0, 130),
// and a wall from (200, 1/3) to (300, 1/3) with elements 5 to each side, the upper with a gap from
// 40 to 60. A pixel is a unit.
class FindSnap : public ::testing::Test {
protected:
    FindSnap() : scene(drawing.database) {
        const double quarter = std::acos(0.0);
        horizontal = drawing.addLine(0, 0.1, 100, 0.1).handle;
        vertical = drawing.addLine(50, -60, 50, 40).handle;
        drawing.addShape(ConicShape{{0, 100, 0}, {30, 0, 0}, {0, 30, 0}, 0.0, quarter});
        wall = drawing.addMline(sampleEastward(200, kThird, 100, {{5, 0, 40, 60}, {-5, 0}})).handle;
    }

    std::optional<SnapTarget> find(PlanPoint cursor, SnapModes modes = SnapModes::all()) {
        query.cursor = cursor;
        query.modes = modes;
        return findSnap(scene, query);
    }

    TestDrawing drawing;
    Scene scene;
    SnapQuery query;
    std::uint64_t horizontal = 0;
    std::uint64_t vertical = 0;
    std::uint64_t wall = 0;
};

TEST_F(FindSnap, pointsWinOverLinesAndOfPointsTheNearest) {
    struct Row {
        const char* what = "";
        PlanPoint cursor;
        SnapMode mode{};
        PlanPoint at;
    };
    // On the arc's circle: 30 / sqrt(2) beside the centre.
    const double half = 30.0 / std::sqrt(2.0);
    const Row rows[] = {
        {"an end, though the line is nearer", {-7, 0.2}, SnapMode::end, {0, 0.1}},
        {"a crossing", {47, 3}, SnapMode::intersection, {50, 0.1}},
        {"the middle of the vertical is 10.1 below the crossing",
         {54, -8},
         SnapMode::middle,
         {50, -10}},
        {"a line, beyond the reach of all its points", {30, 4}, SnapMode::nearest, {30, 0.1}},
        {"an arc's end and not a joint of its pieces", {32, 101}, SnapMode::end, {30, 100}},
        {"an arc's middle", {half + 2, 100 + half}, SnapMode::middle, {half, 100 + half}},
        {"a chain's vertex between the elements", {197, 2}, SnapMode::vertex, {200, kThird}},
        {"a corner of the wall", {197, 7}, SnapMode::elementEnd, {200, 5 + kThird}},
        {"a gap's side", {242, 9}, SnapMode::elementEnd, {240, 5 + kThird}},
        {"the other side", {258, 9}, SnapMode::elementEnd, {260, 5 + kThird}},
        {"nothing of the element in its gap, but the chain's middle",
         {250, 4},
         SnapMode::middle,
         {250, kThird}},
    };
    for (const Row& row : rows) {
        const auto found = find(row.cursor);
        ASSERT_TRUE(found) << row.what;
        EXPECT_EQ(found->mode, row.mode) << row.what << ": " << snapName(found->mode);
        EXPECT_NEAR(found->at.x, row.at.x, 1e-12) << row.what;
        EXPECT_NEAR(found->at.y, row.at.y, 1e-12) << row.what;
    }
    EXPECT_FALSE(find({30, 11}));
    EXPECT_EQ(find({47, 3})->at, (PlanPoint{50, 0.1})) << "to the bit, as the lines have them";
    EXPECT_EQ(find({197, 2})->at, (PlanPoint{200, kThird}));
    EXPECT_EQ(find({47, 3})->handles, (std::array{horizontal, vertical}));
    EXPECT_EQ(find({197, 2})->handles[0], wall);
}

TEST_F(FindSnap, onlyWhatIsWantedIsFoundAndTheRestDoesNotHideIt) {
    EXPECT_EQ(find({47, 3}, {SnapMode::nearest})->at, (PlanPoint{47, 0.1}));
    EXPECT_FALSE(find({47, 3}, {SnapMode::end}));
    EXPECT_FALSE(find({47, 3}, {}));
    query.base = PlanPoint{70, 30};
    EXPECT_EQ(find({68, 3}, {SnapMode::perpendicular})->at, (PlanPoint{70, 0.1}));
    EXPECT_EQ(find({68, 3})->mode, SnapMode::perpendicular);
    query.base = PlanPoint{50, 0.1};
    EXPECT_NE(find({47, 3})->at, *query.base) << "a second point in the place of the first";
    // 3-4-5: the foot of (18 + 24, 100 + 24 + 18) on the circle lies toward the centre.
    query.base = PlanPoint{36, 148};
    const auto foot = find({20, 122}, {SnapMode::perpendicular});
    ASSERT_TRUE(foot);
    EXPECT_NEAR(foot->at.x, 18, 1e-12);
    EXPECT_NEAR(foot->at.y, 124, 1e-12);
}

TEST_F(FindSnap, chainsCrossOtherChainsAndElements) {
    drawing.addMline(sampleMline({{{230, -50, 0}, {0, 1, 0}, {-1, 0, 0}, {{2, 0}, {-2, 0}}, {}},
                                  {{230, 80, 0}, {0, 1, 0}, {-1, 0, 0}, {{2, 0}, {-2, 0}}, {}}}));
    EXPECT_EQ(find({229.5, 1})->at, (PlanPoint{230, kThird}));
    EXPECT_EQ(find({229.5, 1})->mode, SnapMode::axisCrossing);
    const auto corner = find({233, 7});
    EXPECT_EQ(corner->mode, SnapMode::intersection);
    EXPECT_EQ(corner->at, (PlanPoint{232, 5 + kThird}));
    EXPECT_EQ(find({229.6, 6.5})->at, (PlanPoint{230, 5 + kThird})) << "its chain, my element";
}

TEST_F(FindSnap, whereTargetsLieTogetherTheOrderOfTheModesDecides) {
    drawing.addLine(200, kThird, 200, 90);
    EXPECT_EQ(find({200.2, kThird})->mode, SnapMode::vertex);
    query.exclusion.handles = {wall};
    EXPECT_EQ(find({200.2, kThird})->mode, SnapMode::end);
    query.exclusion = {.vertices = {{wall, 0}}};
    EXPECT_EQ(find({200.2, kThird})->mode, SnapMode::end) << "the vertex in hand is no target";
    EXPECT_EQ(find({302, 3})->mode, SnapMode::vertex) << "its neighbour is";
    EXPECT_FALSE(find({250, -5})) << "its elements move with it";
}

TEST_F(FindSnap, aTargetIsHeldUntilAnotherIsClearlyNearer) {
    drawing.addLine(112, 0.1, 112, 50);
    const PlanPoint one{100, 0.1};
    const PlanPoint other{112, 0.1};
    struct Row {
        double x = 0.0;
        std::optional<PlanPoint> at;
    };
    const SnapModes modes{SnapMode::end};
    const Row rows[] = {{105, one},         {106.9, one}, {107.1, other}, {105.1, other},
                        {104.9, one},       {98, one},    {86, one},      {84.9, std::nullopt},
                        {89, std::nullopt}, {91, one}};
    for (const Row& row : rows) {
        query.held = find({row.x, 0.1}, modes);
        EXPECT_EQ(query.held ? std::optional(query.held->at) : std::nullopt, row.at) << row.x;
    }
    query.cursor = {86, 0.1}; // what is held has to be there still
    query.exclusion.handles = {horizontal};
    EXPECT_FALSE(findSnap(scene, query));
}

TEST_F(FindSnap, vertexAloneIsDrawnToByTheElementsOfItsSegment) {
    const auto found = find({280, 7}, {SnapMode::vertex});
    ASSERT_TRUE(found);
    EXPECT_EQ(found->at, (PlanPoint{300, kThird}));
    EXPECT_EQ(found->attractor, (PlanPoint{280, 5 + kThird}));
    EXPECT_FALSE(find({280, 30}, {SnapMode::vertex}));
}

TEST_F(FindSnap, theApertureIsInPixelsAndEndsOfPolylinesArePoints) {
    PolylineShape polyline;
    polyline.vertices = {{{500, 0.7, 0}, 1.0}, {{540, 0.7, 0}, 0.0}, {{580, 40.9, 0}, 0.0}};
    drawing.addShape(polyline);
    for (const double unitsPerPixel : {0.01, 1.0}) {
        query.unitsPerPixel = unitsPerPixel;
        EXPECT_EQ(find({500 - 9 * unitsPerPixel, 0.7})->at, (PlanPoint{500, 0.7}));
        EXPECT_EQ(find({540 + unitsPerPixel, 0.7})->at, (PlanPoint{540, 0.7}));
        EXPECT_EQ(find({580, 40.9 + 9 * unitsPerPixel})->at, (PlanPoint{580, 40.9}));
        EXPECT_FALSE(find({500 - 11 * unitsPerPixel, 0.7}));
    }
    EXPECT_NEAR(find({520, -22})->at.y, 0.7 - 20, 1e-9) << "the lowest point of the half circle";
    EXPECT_EQ(find({520, -22})->mode, SnapMode::middle);
    EXPECT_NEAR(find({508, -21}, {SnapMode::nearest})->at.x, 520 - 20 * 12 / std::hypot(12, 21.7),
                1e-9);
}

// Whatever lies under the cursor, something near is found, and crossings among few lines only.
TEST_F(FindSnap, amongThousandsOfLinesTheAnswerIsCoarse) {
    for (int i = 0; i < 3000; ++i) {
        const double x = 1000.0 + i * 0.01;
        drawing.addLine(x, -500, x, 500);
    }
    drawing.addLine(900, 0.1, 1100, 0.1);
    const auto found = find({1010, 3});
    ASSERT_TRUE(found);
    EXPECT_NE(found->mode, SnapMode::intersection);
    EXPECT_LE(found->pixels, 10.0);
}

TEST_F(FindSnap, theNextTargetLiesInItsDirection) {
    const PlanBox area{{-100, -100}, {400, 400}};
    const auto next = [&](PlanPoint from, PlanPoint direction) -> std::optional<PlanPoint> {
        const auto found = nextSnap(scene, from, direction, area, SnapModes::all(), 1.0);
        return found ? std::optional(found->at) : std::nullopt;
    };
    EXPECT_EQ(next({50, 0.1}, {1, 0}), (PlanPoint{100, 0.1}));
    EXPECT_EQ(next({50, 0.1}, {0, -1}), (PlanPoint{50, -10}));
    EXPECT_EQ(next({50, -10}, {0, -1}), (PlanPoint{50, -60}));
    EXPECT_EQ(next({100, 0.1}, {1, 0}), (PlanPoint{200, kThird}));
    EXPECT_EQ(next({50, -60}, {0, -1}), std::nullopt);
}

TEST(SnapWords, areThoseOfOneOrSeveralModes) {
    EXPECT_EQ(snapWord(L"mid"), (SnapModes{SnapMode::middle}));
    EXPECT_EQ(snapWord(L"Endp"), (SnapModes{SnapMode::end, SnapMode::elementEnd}));
    EXPECT_EQ(snapWord(L"NON"), SnapModes());
    for (const wchar_t* const none : {L"", L"EN", L"MIDDLES", L"1,2", L"OFF"}) {
        EXPECT_FALSE(snapWord(none));
    }
    EXPECT_EQ(snapModesOf(L"all"), SnapModes::all());
    EXPECT_EQ(snapModesOf(snapWordsOf(SnapModes::all())), SnapModes::all());
    EXPECT_EQ(snapModesOf(L" end,per "), (SnapModes{SnapMode::end, SnapMode::perpendicular}));
    EXPECT_FALSE(snapModesOf(L"END OF"));
}

} // namespace

} // namespace orvex::testing
