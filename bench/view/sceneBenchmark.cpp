// What the view of a drawing of walls costs: building its index, a pick, a pick after an edit, and
// a move of the mouse while a point is asked. The number of walls is the first argument; all but
// the index should cost about the same for all of them.

#include "BlockList.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "MlineContent.h"
#include "Scene.h"
#include "WellKnownObjects.h"
#include "findSnap.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include <benchmark/benchmark.h>

namespace orvex {
namespace {

constexpr double kGrid = 100.0; // from wall to wall

// A wall of two lines and two segments with a door in the first.
std::shared_ptr<MlineContent> wallAt(double x, double y) {
    const double h = std::sqrt(0.5);
    const double m = 5.0 * std::sqrt(2.0);
    auto wall = std::make_shared<MlineContent>();
    wall->vertices = {{{x, y, 0}, {1, 0, 0}, {0, 1, 0}},
                      {{x + 80, y, 0}, {0, 1, 0}, {-h, h, 0}},
                      {{x + 80, y + 60, 0}, {0, 1, 0}, {-1, 0, 0}}};
    const std::vector<std::uint32_t> counts{4, 0, 4, 0, 2, 0, 2, 0, 2, 0, 2, 0};
    const std::vector<double> values{5, 0, 20, 40, -5, 0, 20, 40, m, 0, -m, 0, 5, 0, -5, 0};
    wall->lists.assignFlat(2, counts, values);
    return wall;
}

class Walls {
public:
    explicit Walls(std::int64_t count)
        : m_side(static_cast<std::int64_t>(std::ceil(std::sqrt(static_cast<double>(count))))) {
        DatabaseCore& core = database.core();
        const KdDbObjectId style(core.wellKnown().findStyle(L"STANDARD"));
        for (std::int64_t i = 0; i < count; ++i) {
            auto wall = std::make_unique<KdDbMline>();
            auto content = wallAt(column(i), row(i));
            content->style = style;
            wall->setContent(std::move(content));
            KdDbStub& stub = core.adopt(std::move(wall), ObjectKind::mline, nullptr);
            core.blocks().appendEntity(core.blocks().modelSpace(), stub);
        }
    }
    [[nodiscard]] double column(std::int64_t i) const {
        return kGrid * static_cast<double>(i % m_side);
    }
    [[nodiscard]] double row(std::int64_t i) const {
        const std::int64_t number = i / m_side;
        return kGrid * static_cast<double>(number);
    }

    KdDbDatabase database;

private:
    std::int64_t m_side;
};

// Numbers all over the range, in an order that no cache likes.
std::int64_t scattered(std::int64_t i, std::int64_t count) {
    return i * 7919 % count;
}

void buildIndex(benchmark::State& state) {
    Walls walls(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        Scene scene(walls.database);
        benchmark::DoNotOptimize(scene.extents());
    }
}
BENCHMARK(buildIndex)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void pick(benchmark::State& state) {
    Walls walls(state.range(0));
    Scene scene(walls.database);
    benchmark::DoNotOptimize(scene.extents());
    std::int64_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const std::int64_t wall = scattered(i++, state.range(0));
        const PlanPoint point{walls.column(wall) + 10, walls.row(wall) + 5};
        if (scene.pick(point, 1.0) == nullptr) {
            state.SkipWithError("a wall wasn't found");
        }
    }
}
BENCHMARK(pick)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

void editAndPick(benchmark::State& state) {
    Walls walls(state.range(0));
    Scene scene(walls.database);
    benchmark::DoNotOptimize(scene.extents());
    const auto& entities = walls.database.core().blocks().modelSpace().entities;
    std::int64_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const std::int64_t wall = scattered(i++, state.range(0));
        auto& mline = static_cast<KdDbMline&>(*entities[static_cast<std::size_t>(wall)]->object);
        mline.setContent(wallAt(walls.column(wall), walls.row(wall) + static_cast<double>(i % 7)));
        const PlanPoint point{walls.column(wall) + 10,
                              walls.row(wall) + static_cast<double>(i % 7) + 5};
        if (scene.pick(point, 1.0) == nullptr) {
            state.SkipWithError("a wall wasn't found");
        }
        benchmark::DoNotOptimize(scene.extents());
    }
}
BENCHMARK(editAndPick)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

// At a scale of so many walls to a hundred pixels, in places all over the drawing, near a corner.
void snap(benchmark::State& state) {
    Walls walls(state.range(0));
    Scene scene(walls.database);
    benchmark::DoNotOptimize(scene.extents());
    SnapQuery query;
    query.unitsPerPixel = kGrid * static_cast<double>(state.range(1)) / 100.0;
    std::int64_t i = 0;
    double slowest = 0.0;
    for ([[maybe_unused]] auto _ : state) {
        const std::int64_t wall = scattered(i++, state.range(0));
        query.cursor = {walls.column(wall) + 2.0 * query.unitsPerPixel, walls.row(wall)};
        query.base = PlanPoint{walls.column(wall) - 300.0, walls.row(wall) + 200.0};
        const auto begin = std::chrono::steady_clock::now();
        query.held = findSnap(scene, query);
        slowest = std::max(slowest, std::chrono::duration<double, std::milli>(
                                        std::chrono::steady_clock::now() - begin)
                                        .count());
        if (!query.held) {
            state.SkipWithError("nothing was found beside a wall");
        }
    }
    state.counters["slowest_ms"] = slowest;
}
BENCHMARK(snap)
    ->ArgNames({"walls", "wallsIn100px"})
    ->Args({1'000, 1})
    ->Args({100'000, 1})
    ->Args({100'000, 10})
    ->Args({100'000, 100})
    ->Args({100'000, 1000})
    ->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace orvex
