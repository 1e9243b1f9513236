#include "viewChange.h"

#include "PixelGrid.h"

#include <gmock/gmock.h>

namespace orvex::testing {
namespace {

TEST(ViewChange, aWindowFitsWhicheverWayItIsDrawn) {
    PlanView view(600, 300); // 0.1 a pixel
    view.setView({0, 0}, 30.0);
    // Narrow and tall: its height counts. 60 pixels of 300.
    const ViewState tall = windowed(view, {320, 180}, {300, 120});
    EXPECT_DOUBLE_EQ(tall.height, 6.0);
    EXPECT_NEAR(tall.center.x, 1.0, 1e-12);
    EXPECT_NEAR(tall.center.y, 0.0, 1e-12);
    // Wide: 300 of 600 pixels are half the view.
    EXPECT_DOUBLE_EQ(windowed(view, {0, 0}, {300, 10}).height, 15.0);
}

TEST(ViewHistory, goesBackByMovements) {
    ViewHistory history;
    ViewState state;
    EXPECT_FALSE(history.back(state));
    history.leave({{1, 0}, 10});
    history.leave({{2, 0}, 10}, true); // the same turn of the wheel
    history.leave({{3, 0}, 10});
    ASSERT_TRUE(history.back(state));
    EXPECT_EQ(state, (ViewState{{3, 0}, 10}));
    ASSERT_TRUE(history.back(state));
    EXPECT_EQ(state, (ViewState{{1, 0}, 10}));
    EXPECT_FALSE(history.back(state));
}

TEST(PixelGrid, tilesCoverTheViewAndMeetWithoutGaps) {
    for (const PlanPoint center : {PlanPoint{0, 0}, {-1234.56, 987.6}, {1e7, -1e7}}) {
        PlanView view(700, 500);
        view.setView(center, 123.0);
        const PixelGrid grid(view, 1.0);
        std::vector<int> covered(std::size_t{700} * 500);
        for (const TileKey& tile : grid.visibleTiles()) {
            const QPoint origin = grid.tileOrigin(tile);
            const QRect seen = QRect(origin, QSize(PixelGrid::kTileSide, PixelGrid::kTileSide)) &
                               QRect(0, 0, 700, 500);
            ASSERT_FALSE(seen.isEmpty());
            for (int y = seen.top(); y <= seen.bottom(); ++y) {
                for (int x = seen.left(); x <= seen.right(); ++x) {
                    ++covered[static_cast<std::size_t>(y) * 700 + static_cast<std::size_t>(x)];
                }
            }
            // What the tile paints of a place lies within a pixel of where the view has it.
            const PlanPoint plan = view.toPlan({321.0, 123.0});
            const PlanPoint inTile = grid.toTilePixels(tile, plan);
            EXPECT_NEAR(inTile.x + origin.x(), 321.0, 0.51);
            EXPECT_NEAR(inTile.y + origin.y(), 123.0, 0.51);
        }
        EXPECT_THAT(covered, ::testing::Each(1));
    }
}

} // namespace
} // namespace orvex::testing
