// What the view of a drawing of walls costs: building its index, a pick, and a pick after an edit.
// The number of walls is the argument; a pick should cost about the same for all of them.

#include "BlockList.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "MlineContent.h"
#include "Scene.h"
#include "WellKnownObjects.h"

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

} // namespace
} // namespace orvex
