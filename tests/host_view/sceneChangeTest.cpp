#include "Scene.h"

#include "AppearanceMaker.h"
#include "BlockList.h"
#include "ChangeLog.h"
#include "MlineSample.h"
#include "TestDrawing.h"
#include "pickDistance.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <random>
#include <set>

#include <gmock/gmock.h>

namespace orvex::testing {
namespace {

TEST(SceneChange, followsLayersStylesAndBlocks) {
    TestDrawing drawing;
    KdDbLayerTableRecord& layer = drawing.addLayer(L"WALL", 1);
    KdDbStub& style = drawing.addStyle(sampleStyle(0, {1, -1}));
    MlineContent content = sampleEastward(0, 0, 10, {{1, 0}, {-1, 0}});
    content.style = KdDbObjectId(&style);
    KdDbStub& wall = drawing.addMline(content, L"WALL");
    BlockEntities& block = drawing.core.blocks().add(L"B");
    KdDbStub& inBlock = drawing.addShape(LineShape{{0, 100, 0}, {10, 100, 0}}, {}, &block);
    KdDbStub& insert = drawing.addShape(insertAt({}, L"B"));
    Scene scene(drawing.database);
    EXPECT_EQ(scene.appearance(wall).strokes[0].rgb, paletteRgb(1));
    EXPECT_EQ(scene.extents().low.x, 0);
    EXPECT_EQ(scene.pick({5, 100}, 1), &insert);

    KdCmColor blue;
    blue.setColorIndex(5);
    layer.setColor(blue);
    static_cast<KdDbMlineStyle&>(*style.object).setStartRoundCap(true);
    EXPECT_EQ(scene.appearance(wall).strokes[0].rgb, paletteRgb(5));
    EXPECT_NEAR(scene.extents().low.x, -1, 1e-9) << "a round cap of radius 1";

    layer.setIsOff(true);
    EXPECT_EQ(scene.pick({5, 1}, 0.1), nullptr);
    EXPECT_FALSE(scene.appearance(wall).seen);

    drawing.core.erase(inBlock);
    EXPECT_EQ(scene.pick({5, 100}, 1), nullptr);
}

// A drawing that goes on changing, compared with what a search through all of it says.
class RandomDrawing {
public:
    explicit RandomDrawing(unsigned seed) : m_random(seed) {
        m_style = KdDbObjectId(&drawing.addStyle(sampleStyle(1 | 2 | 64 | 256, {1, -1})));
        drawing.addLayer(L"OFF", 1).setIsOff(true);
        for (int i = 0; i < 150; ++i) {
            add();
        }
    }

    double number(double from, double to) {
        return std::uniform_real_distribution<double>(from, to)(m_random);
    }
    KdDbStub& any() {
        return *m_all[std::uniform_int_distribution<std::size_t>(0, m_all.size() - 1)(m_random)];
    }
    void change(Scene& scene) {
        const std::function<void()> changes[] = {
            [&] { add(); },
            [&] { drawing.core.erase(any()); },
            [&] { scene.hide(any()); },
            [&] { scene.show(any()); },
            [&] { drawing.core.changes().undo(); },
            [&] { reshape(any()); },
            [&] {
                drawing.core.changes().beginCommand();
                reshape(any());
                add();
                drawing.core.changes().endCommand();
            },
        };
        changes[std::uniform_int_distribution<int>(0, 6)(m_random)]();
    }
    [[nodiscard]] const std::vector<KdDbStub*>& all() const { return m_all; }

    TestDrawing drawing;

private:
    MlineContent content() {
        // Whole numbers now and then, so that lines fall upon each other.
        const double grid = number(0, 1) < 0.5 ? 1.0 : 1e-3;
        const double x = std::floor(number(0, 100) / grid) * grid;
        const double y = std::floor(number(0, 100) / grid) * grid;
        MlineContent made =
            sampleEastward(x, y, number(0, 30), {{1, 0, number(0, 10), number(10, 20)}, {-1, 0}});
        made.style = m_style;
        return made;
    }
    void add() {
        const bool seen = number(0, 1) < 0.9;
        m_all.push_back(&drawing.addMline(content(), seen ? L"0" : L"OFF"));
    }
    void reshape(KdDbStub& stub) {
        if (!stub.erased) {
            auto made = std::make_shared<MlineContent>(content());
            made->traits = nullptr;
            TestDrawing::mline(stub).setContent(made);
        }
    }

    std::mt19937 m_random;
    KdDbObjectId m_style;
    std::vector<KdDbStub*> m_all;
};

TEST(SceneProperty, theIndexFindsWhatALinearSearchFinds) {
    int found = 0;
    for (unsigned seed = 1; seed <= 20; ++seed) {
        RandomDrawing random(seed);
        Scene scene(random.drawing.database);
        for (int step = 0; step < 60; ++step) {
            random.change(scene);
            for (int steps = static_cast<int>(random.number(0, 4)); steps > 0; --steps) {
                scene.prepareSome({}); // stops wherever it is
            }
            const PlanPoint point{std::round(random.number(0, 110)), random.number(0, 101)};
            AppearanceMaker maker(random.drawing.core);
            KdDbStub* expected = nullptr;
            double nearest = 1e9;
            PlanBox extents;
            std::set<const KdDbStub*> shown;
            scene.visitAll([&](KdDbStub& stub, const Appearance&) { shown.insert(&stub); });
            for (KdDbStub* stub : random.all()) {
                const Appearance appearance = maker.appearance(*stub);
                if (!appearance.seen || !shown.contains(stub)) {
                    continue;
                }
                extents.include(appearance.box());
                const auto distance = pickDistance(appearance, point, 1.5);
                if (distance && *distance <= nearest + 1e-9) {
                    nearest = std::min(nearest, *distance);
                    expected = stub;
                }
            }
            ASSERT_EQ(scene.pick(point, 1.5), expected) << "seed " << seed << " step " << step;
            ASSERT_EQ(scene.extents().low, extents.low);
            ASSERT_EQ(scene.extents().high, extents.high);
            found += expected != nullptr ? 1 : 0;
        }
    }
    EXPECT_GT(found, 200) << "or nothing was tested";
}

// Whether all that a set of boxes covers was reported.
bool isTold(const Scene::Difference& difference, const PlanBox& box) {
    return difference.everything ||
           std::any_of(difference.areas.begin(), difference.areas.end(), [&](const PlanBox& area) {
               return area.low.x <= box.low.x && area.low.y <= box.low.y &&
                      area.high.x >= box.high.x && area.high.y >= box.high.y;
           });
}

TEST(SceneSteps, reportWhatChangedBeforeAndAfter) {
    TestDrawing drawing;
    KdDbStub& wall = drawing.addMline(sampleEastward(0, 0, 10, {{1, 0}, {-1, 0}}));
    drawing.addMline(sampleEastward(0, 500, 10, {{1, 0}}));
    Scene scene(drawing.database);
    ASSERT_TRUE(scene.prepareSome(std::chrono::hours(1)));
    EXPECT_TRUE(scene.takeDifference().everything) << "nothing was known before";
    ASSERT_TRUE(scene.prepareSome({}));
    EXPECT_TRUE(scene.takeDifference().isEmpty());

    const PlanBox before = scene.appearance(wall).box();
    TestDrawing::mline(wall).setContent(
        std::make_shared<MlineContent>(sampleEastward(0, 80, 10, {{1, 0}})));
    const PlanBox after = scene.appearance(wall).box();
    scene.prepareSome(std::chrono::hours(1));
    Scene::Difference difference = scene.takeDifference();
    EXPECT_TRUE(isTold(difference, before));
    EXPECT_TRUE(isTold(difference, after));
    EXPECT_FALSE(isTold(difference, {{0, 499}, {10, 501}}));

    for (const bool hide : {true, false}) {
        hide ? scene.hide(wall) : scene.show(wall);
        scene.prepareSome(std::chrono::hours(1));
        EXPECT_TRUE(isTold(scene.takeDifference(), after)) << hide;
    }
    KdDbStub& added = drawing.addLine(900, 900, 901, 902);
    scene.prepareSome(std::chrono::hours(1));
    EXPECT_TRUE(isTold(scene.takeDifference(), {{900, 900}, {901, 902}}));
    drawing.core.erase(added);
    scene.prepareSome(std::chrono::hours(1));
    EXPECT_TRUE(isTold(scene.takeDifference(), {{900, 900}, {901, 902}}));
}

// Enough for the index to be packed in the background.
TEST(SceneSteps, takeChangesInWhileTheIndexIsMade) {
    TestDrawing drawing;
    KdDbLayerTableRecord& layer = drawing.addLayer(L"WALL", 1);
    constexpr int kWalls = 5000;
    for (int i = 0; i < kWalls; ++i) {
        drawing.addMline(sampleEastward(0, 10.0 * i, 5, {{1, 0}}), i % 2 == 0 ? L"WALL" : L"0");
    }
    Scene scene(drawing.database);
    int added = 0;
    for (int change = 0; change < 12; ++change) {
        layer.setIsOff(!layer.isOff()); // the index begins anew, in whichever state it is
        for (int steps = 0; steps < 700 * change; ++steps) {
            if (scene.prepareSome({})) {
                break;
            }
            if (steps == 100) {
                drawing.addLine(100, added, 105, added);
                ++added;
            }
        }
    }
    while (!scene.prepareSome(std::chrono::milliseconds(1))) {
    }
    const std::size_t walls = layer.isOff() ? kWalls / 2 : kWalls;
    EXPECT_EQ(scene.entitiesIn({{-1, -1}, {1e6, 1e6}}).size(),
              walls + static_cast<unsigned>(added));
    EXPECT_EQ(scene.entitiesIn({{99, -1}, {106, 1e6}}).size(), static_cast<std::size_t>(added));
    EXPECT_GT(added, 5);
}

} // namespace
} // namespace orvex::testing
