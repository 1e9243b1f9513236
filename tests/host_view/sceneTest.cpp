#include "Scene.h"

#include "BlockList.h"
#include "MlineSample.h"
#include "TestDrawing.h"

#include <cmath>
#include <numbers>

#include <gmock/gmock.h>

namespace orvex::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

EntityTraits onLayer(const wchar_t* layer, std::uint16_t color = 256) {
    EntityTraits traits;
    traits.layer = layer;
    traits.color.setColorIndex(color);
    return traits;
}

TEST(ScenePick, passesOverWhatIsNotSeen) {
    TestDrawing drawing;
    drawing.addLayer(L"OFF", 1).setIsOff(true);
    drawing.addLayer(L"FROZEN", 1).setIsFrozen(true);
    drawing.addLine(0, 0, 10, 0, onLayer(L"OFF"));
    drawing.addLine(0, 0, 10, 0, onLayer(L"frozen"));
    EntityTraits invisible;
    invisible.visible = false;
    drawing.addLine(0, 0, 10, 0, invisible);
    drawing.core.erase(drawing.addLine(0, 0, 10, 0));
    BlockEntities& paper = drawing.core.blocks().add(L"*Paper_Space7");
    drawing.addShape(LineShape{{0, 0, 0}, {10, 0, 0}}, {}, &paper);
    Scene scene(drawing.database);
    EXPECT_EQ(scene.pick({5, 0}, 1), nullptr);
    EXPECT_TRUE(scene.extents().isEmpty());

    KdDbStub& hidden = drawing.addLine(0, 0, 10, 0);
    scene.hide(hidden);
    EXPECT_EQ(scene.pick({5, 0}, 1), nullptr);
    scene.show(hidden);
    scene.setUnitsPerPixel([] { return 0.5; });
    EXPECT_EQ(scene.entityAt({5, 1.5, 99}, 3), &hidden); // pixels are its reach
    EXPECT_EQ(scene.entityAt({5, 1.6, 0}, 3), nullptr);
    EXPECT_EQ(scene.entityAt({std::nan(""), 0, 0}, 3), nullptr);
}

TEST(SceneAppearance, resolvesColorsByLayerAndByBlock) {
    TestDrawing drawing;
    drawing.addLayer(L"RED", 1);
    auto style = sampleStyle(0, {1, 0, -1});
    style.elements[1].color.setColorIndex(0); // by block: as the multiline
    style.elements[2].color.setColorIndex(5);
    const KdDbObjectId id(&drawing.addStyle(style));
    MlineContent wall = sampleEastward(0, 0, 10, {{1, 0}, {0, 0}, {-1, 0}, {-2, 0}});
    wall.style = id;
    KdDbStub& stub = drawing.addMline(wall, L"RED");
    TestDrawing::mline(stub).setColorIndex(3);
    Scene scene(drawing.database);
    const Appearance& appearance = scene.appearance(stub);
    ASSERT_EQ(appearance.strokes.size(), 4U);
    EXPECT_EQ(appearance.strokes[0].rgb, paletteRgb(1));
    EXPECT_EQ(appearance.strokes[1].rgb, paletteRgb(3));
    EXPECT_EQ(appearance.strokes[2].rgb, paletteRgb(5));
    EXPECT_EQ(appearance.strokes[3].rgb, paletteRgb(3)) << "an element that the style doesn't have";
}

TEST(ScenePick, whatLiesTogetherIsListedNearestFirst) {
    TestDrawing drawing;
    KdDbStub& low = drawing.addLine(0, 0, 10, 0);
    KdDbStub& high = drawing.addLine(0, 0, 10, 0);
    KdDbStub& near = drawing.addLine(0, 0.3, 10, 0.3);
    drawing.addLine(0, 0.8, 10, 0.8);
    Scene scene(drawing.database);
    EXPECT_THAT(scene.picks({5, 0}, 1, 0.4), ElementsAre(&high, &low, &near));
    EXPECT_THAT(scene.picks({5, 0.2}, 1, 0.4), ElementsAre(&near, &high, &low));
    EXPECT_THAT(scene.picks({5, 3}, 1, 0.5), IsEmpty());
}

TEST(SceneAppearance, anInsertPlacesItsBlockAndGivesItLayerAndColor) {
    TestDrawing drawing;
    drawing.addLayer(L"RED", 1);
    drawing.addLayer(L"GREEN", 3);
    BlockEntities& block = drawing.core.blocks().add(L"CHAIR");
    block.basePoint = {1, 1, 0};
    const LineShape line{{1, 1, 0}, {3, 1, 0}};
    drawing.addShape(line, onLayer(L"0"), &block);
    drawing.addShape(line, onLayer(L"GREEN"), &block);
    drawing.addShape(line, onLayer(L"GREEN", 0), &block);
    drawing.addShape(ConicShape{{1, 1, 0}, {1, 0, 0}, {0, 1, 0}}, onLayer(L"0", 4), &block);

    // A quarter turn, twice as large, two columns 10 apart.
    InsertShape insert = insertAt({100, 0, 0}, L"chair");
    insert.xAxis = {0, 2, 0};
    insert.yAxis = {-2, 0, 0};
    insert.columns = 2;
    insert.columnStep = {10, 0, 0};
    insert.attributes.push_back({{7, 8, 0}, {1, 0, 0}, {0, 1, 0}, 2, 0, 0, {L"room 3"}});
    KdDbStub& stub = drawing.addShape(insert, onLayer(L"RED", 6));
    Scene scene(drawing.database);
    const Appearance& appearance = scene.appearance(stub);
    ASSERT_EQ(appearance.strokes.size(), 8U);
    EXPECT_THAT(appearance.strokes[0].points, ElementsAre(PlanPoint{100, 0}, PlanPoint{100, 4}));
    EXPECT_THAT(appearance.strokes[4].points, ElementsAre(PlanPoint{110, 0}, PlanPoint{110, 4}));
    EXPECT_EQ(appearance.strokes[0].rgb, paletteRgb(1)) << "by layer, and layer 0 is the insert's";
    EXPECT_EQ(appearance.strokes[1].rgb, paletteRgb(3));
    EXPECT_EQ(appearance.strokes[2].rgb, paletteRgb(6));
    EXPECT_EQ(appearance.strokes[3].rgb, paletteRgb(4));
    ASSERT_EQ(appearance.labels.size(), 1U); // where it stands, once for all columns
    EXPECT_EQ(appearance.labels[0].anchor, (PlanPoint{7, 8}));
    EXPECT_EQ(scene.pick({100, 3}, 0.5), &stub);
}

TEST(SceneAppearance, blocksInBlocksEndSomewhere) {
    TestDrawing drawing;
    // A block that holds itself beside a line, and a tower of blocks that doubles at each floor.
    BlockEntities& cycle = drawing.core.blocks().add(L"CYCLE");
    drawing.addShape(LineShape{{0, 0, 0}, {1, 0, 0}}, {}, &cycle);
    drawing.addShape(insertAt({5, 0, 0}, L"CYCLE"), {}, &cycle);
    KdDbStub& round = drawing.addShape(insertAt({}, L"CYCLE"));
    for (int floor = 0; floor < 30; ++floor) {
        BlockEntities& tower = drawing.core.blocks().add(L"TOWER" + std::to_wstring(floor));
        const std::wstring below = L"TOWER" + std::to_wstring(floor - 1);
        for (const double shift : {0.0, 1.0}) {
            if (floor == 0) {
                drawing.addShape(LineShape{{shift, 0, 0}, {shift, 1, 0}}, {}, &tower);
            } else {
                drawing.addShape(insertAt({shift, 0, 0}, below), {}, &tower);
            }
        }
    }
    InsertShape grid = insertAt({}, L"TOWER29");
    grid.columns = grid.rows = 32767;
    KdDbStub& bomb = drawing.addShape(grid);
    Scene scene(drawing.database);
    EXPECT_EQ(scene.appearance(round).strokes.size(), 1U);
    EXPECT_LE(scene.appearance(bomb).strokes.size(), 50'000U);
    EXPECT_THAT(scene.partlyDrawn(), ElementsAre(bomb.handle));
    EXPECT_THAT(scene.appearance(drawing.addShape(insertAt({}, L"*Model_Space"))).strokes,
                IsEmpty());
}

TEST(SceneAppearance, aBlockInsertedOnceIsDrawnWhole) {
    constexpr int kLines = 100'000;
    TestDrawing drawing;
    BlockEntities& large = drawing.core.blocks().add(L"LARGE");
    for (int i = 0; i < kLines; ++i) {
        drawing.addShape(LineShape{{0, 1.0 * i, 0}, {1, 1.0 * i, 0}}, {}, &large);
    }
    KdDbStub& once = drawing.addShape(insertAt({}, L"LARGE"));
    InsertShape pair = insertAt({5, 0, 0}, L"LARGE");
    pair.columns = 2;
    KdDbStub& twice = drawing.addShape(pair);
    Scene scene(drawing.database);
    EXPECT_EQ(scene.appearance(once).strokes.size(), std::size_t{kLines});
    EXPECT_THAT(scene.partlyDrawn(), IsEmpty());
    EXPECT_EQ(scene.appearance(twice).strokes.size(), std::size_t{kLines} + 50'000U);
    EXPECT_THAT(scene.partlyDrawn(), ElementsAre(twice.handle));
}

TEST(SceneAppearance, textBecomesLabelsLineByLine) {
    TestDrawing drawing;
    const TextShape text{{10, 20, 0}, {0, 1, 0}, {-1, 0, 0}, 3, 1, 3, {L"one", L"two"}};
    KdDbStub& stub = drawing.addShape(text);
    Scene scene(drawing.database);
    const Appearance& appearance = scene.appearance(stub);
    ASSERT_EQ(appearance.labels.size(), 2U);
    EXPECT_EQ(appearance.labels[0].anchor, (PlanPoint{10, 20}));
    EXPECT_NEAR(appearance.labels[1].anchor.x, 15, 1e-9) << "5/3 of the height further down";
    EXPECT_EQ(appearance.labels[1].text, L"two");
    EXPECT_DOUBLE_EQ(appearance.labels[0].angle, std::numbers::pi / 2);
    EXPECT_DOUBLE_EQ(appearance.labels[0].height, 3);
}

} // namespace
} // namespace orvex::testing
