#include "boxSelection.h"

#include "Scene.h"
#include "TestDrawing.h"

#include <gmock/gmock.h>

namespace orvex {
namespace {

// Boxes against the square from (0, 0) to (10, 10).
constexpr PlanBox kBox{{0, 0}, {10, 10}};

TEST(BoxSelection, touchesByWhatIsDrawnAndNotByItsExtents) {
    struct Case {
        const char* what;
        std::vector<PlanPoint> points;
        bool isFill;
        bool touches;
    };
    const Case cases[] = {
        {"through it", {{-5, 3}, {20, 8}}, false, true},
        {"round its corner", {{-1, 9}, {5, 21}}, false, false},
        {"over its corner", {{-1, 8}, {3, 12}}, false, true},
        {"an angle around it", {{-1, -1}, {-1, 20}, {20, 20}}, false, false},
        {"on its edge", {{10, 5}, {20, 5}}, false, true},
        {"a dot on its corner", {{10, 10}}, false, true},
        {"a dot beside it", {{10.001, 10}}, false, false},
        {"a fill around it", {{-5, -5}, {20, -5}, {20, 20}, {-5, 20}}, true, true},
        {"a fill whose last edge passes", {{-5, 5}, {-5, 30}, {20, 5}}, true, true},
        {"a fill that leaves it out",
         {{-1, -1}, {-1, 30}, {30, 30}, {30, 29}, {0, 29}},
         true,
         false},
    };
    for (const Case& each : cases) {
        Appearance appearance;
        if (each.isFill) {
            appearance.fills.push_back({.outline = each.points});
        } else {
            appearance.strokes.push_back({.points = each.points});
        }
        EXPECT_EQ(touches(appearance, kBox), each.touches) << each.what;
        EXPECT_FALSE(touches(appearance, PlanBox{})) << each.what;
    }
}

TEST(BoxSelection, ofASceneTakesWhatIsSeen) {
    testing::TestDrawing drawing;
    KdDbStub& within = drawing.addLine(1, 1, 9, 9);
    KdDbStub& across = drawing.addLine(5, 5, 20, 5);
    KdDbStub& past = drawing.addLine(-1, 9, 5, 21); // its extents meet the box
    EntityTraits unseen;
    unseen.visible = false;
    drawing.addLine(2, 2, 3, 3, unseen);
    Scene scene(drawing.database);
    EXPECT_THAT(scene.entitiesWithin(kBox), ::testing::ElementsAre(&within));
    EXPECT_THAT(scene.entitiesTouching(kBox), ::testing::ElementsAre(&within, &across));
    EXPECT_THAT(scene.allSeen(), ::testing::ElementsAre(&within, &across, &past));
}

} // namespace
} // namespace orvex
