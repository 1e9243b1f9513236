#include "Scene.h"

#include "AppearanceCache.h"
#include "LookMaker.h"
#include "MlineSketch.h"
#include "TestDrawing.h"
#include "pickDistance.h"

#include <functional>
#include <random>
#include <set>

#include <gmock/gmock.h>

namespace orvex::testing {
namespace {

TEST(SceneChange, FollowsLayersStylesAndBlocks) {
    TestDrawing drawing;
    KdDbLayerTableRecord& layer = drawing.addLayer(L"WALL", 1);
    KdDbStub& style = drawing.addStyle(sketchStyle(0, {1, -1}));
    MlineContent content = sketchEastward(0, 0, 10, {{1, 0}, {-1, 0}});
    content.style = KdDbObjectId(&style);
    KdDbStub& wall = drawing.addMline(content, L"WALL");
    BlockEntities& block = drawing.core.addBlock(L"B");
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

TEST(AppearanceCache, StaysWithinItsMemoryAndKeepsWhatIsUsed) {
    constexpr std::size_t kBytes = 64 << 10;
    AppearanceCache cache(kBytes);
    std::vector<KdDbStub> stubs(1000);
    const auto look = [](double x) {
        Appearance made;
        made.strokes.push_back({.points = std::vector<PlanPoint>(10, {x, 0})});
        return made;
    };
    for (std::size_t i = 0; i < stubs.size(); ++i) {
        const Appearance& kept = cache.keep(stubs[i], look(static_cast<double>(i)));
        const Appearance* first = cache.find(stubs.front()); // used all the time
        ASSERT_NE(first, nullptr) << i;
        EXPECT_EQ(first->strokes[0].points[0].x, 0.0);
        EXPECT_EQ(kept.strokes[0].points[0].x, static_cast<double>(i));
    }
    EXPECT_LT(cache.size(), kBytes / sizeof(Appearance));
    EXPECT_GT(cache.size(), 20U);
    cache.drop(stubs.front());
    EXPECT_EQ(cache.find(stubs.front()), nullptr);
}

// A drawing that goes on changing, beside what a search through all of it says.
class RandomDrawing {
public:
    explicit RandomDrawing(unsigned seed) : m_random(seed) {
        m_style = KdDbObjectId(&drawing.addStyle(sketchStyle(1 | 2 | 64 | 256, {1, -1})));
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
            [&] { drawing.core.undo(); },
            [&] { reshape(any()); },
            [&] {
                drawing.core.beginCommand();
                reshape(any());
                add();
                drawing.core.endCommand();
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
            sketchEastward(x, y, number(0, 30), {{1, 0, number(0, 10), number(10, 20)}, {-1, 0}});
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

TEST(SceneProperty, TheIndexFindsWhatALinearSearchFinds) {
    int found = 0;
    for (unsigned seed = 1; seed <= 20; ++seed) {
        RandomDrawing random(seed);
        Scene scene(random.drawing.database);
        for (int step = 0; step < 60; ++step) {
            random.change(scene);
            const PlanPoint point{std::round(random.number(0, 110)), random.number(0, 101)};
            LookMaker maker(random.drawing.core);
            KdDbStub* expected = nullptr;
            double nearest = 1e9;
            PlanBox extents;
            std::set<const KdDbStub*> shown;
            scene.visitAll([&](KdDbStub& stub, const Appearance&) { shown.insert(&stub); });
            for (KdDbStub* stub : random.all()) {
                const Appearance look = maker.appearance(*stub);
                if (!look.seen || !shown.contains(stub)) {
                    continue;
                }
                extents.include(look.box());
                const auto distance = pickDistance(look, point, 1.5);
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

} // namespace
} // namespace orvex::testing
