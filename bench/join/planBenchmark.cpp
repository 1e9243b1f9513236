// Planning the joints of a whole plan, and judging it again when it is joined.

#include "planSamples.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace orvex {

namespace {

using Plan = std::vector<testing::WallSketch>;

testing::WallSketch wall(PlanVector from, PlanVector to) {
    return {{from, to}};
}

// Houses of eight walls in rows: four around, two each way inside. 16 meetings each.
Plan houses(int walls) {
    Plan plan;
    const int count = walls / 8;
    const int row = static_cast<int>(std::ceil(std::sqrt(count)));
    for (int i = 0; i < count; ++i) {
        const double x = i % row * 8000.0;
        const double y = i / row * 8000.0; // NOLINT(bugprone-integer-division): whole rows
        for (const double at : {0.0, 2000.0, 4000.0, 6000.0}) {
            plan.push_back(wall({x - 30.0, y + at}, {x + 6030.0, y + at}));
            plan.push_back(wall({x + at, y - 30.0}, {x + at, y + 6030.0}));
        }
    }
    return plan;
}

Plan frames(int walls) {
    Plan plan;
    const int row = static_cast<int>(std::ceil(std::sqrt(walls / 4.0)));
    for (int i = 0; i < walls / 4; ++i) {
        const PlanVector o{i % row * 5000.0, std::floor(i / static_cast<double>(row)) * 5000.0};
        const PlanVector x{4000.0, 0.0};
        const PlanVector y{0.0, 4000.0};
        plan.push_back(wall(o, o + x));
        plan.push_back(wall(o + x, o + x + y));
        plan.push_back(wall(o + x + y, o + y));
        plan.push_back(wall(o + y, o));
    }
    return plan;
}

Plan comb(int stems) {
    Plan plan{wall({-1000.0, 0.0}, {stems * 500.0, 0.0})};
    for (int i = 0; i < stems; ++i) {
        plan.push_back(wall({i * 500.0, i % 2 == 0 ? 2000.0 : -2000.0}, {i * 500.0, 0.0}));
    }
    return plan;
}

// As many lines each way; walls come from the square of that.
Plan grid(int lines) {
    Plan plan;
    const double side = lines * 1000.0;
    for (int i = 0; i < lines; ++i) {
        plan.push_back(wall({-1000.0, i * 1000.0}, {side, i * 1000.0}));
        plan.push_back(wall({i * 1000.0, -1000.0}, {i * 1000.0, side}));
    }
    return plan;
}

void planOf(benchmark::State& state, Plan (*sketch)(int), double degrees) {
    const Plan plan = testing::turned(sketch(static_cast<int>(state.range(0))), degrees);
    const std::vector<JoinWall> walls = testing::wallsOf(plan);
    std::size_t places = 0;
    for (auto step : state) {
        places = planJoins(walls, {}).places.size();
    }
    state.counters["walls"] = static_cast<double>(walls.size());
    state.counters["places"] = static_cast<double>(places);
}

BENCHMARK_CAPTURE(planOf, houses, houses, 0.0)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(planOf, turnedHouses, houses, 30.0)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(planOf, frames, frames, 0.0)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(planOf, comb, comb, 0.0)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(planOf, turnedComb, comb, 30.0)
    ->Arg(500)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(planOf, grid, grid, 0.0)->Arg(30)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(planOf, turnedGrid, grid, 30.0)->Arg(30)->Arg(100)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace orvex
