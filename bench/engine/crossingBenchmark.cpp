// Searching two chains of 10, 100 and 1000 vertices for the pairs that cross, as the search does it
// and by solving every pair. The chains lie across each other: a zigzag, whose segments lean both
// ways, and steps, whose segments are parallel or square.

#include "CMlineEdit.h"
#include "crossingSearch.h"
#include "lineMath.h"

#include <benchmark/benchmark.h>

using namespace mledit;

namespace {

using Chain = std::vector<ChainPoint>;

// Along x through the origin, teeth 5 high; turned by a right angle for the second.
Chain zigzag(int vertices, bool second) {
    Chain chain;
    for (int i = 0; i < vertices; ++i) {
        const int fromMiddle = i - vertices / 2;
        const double along = fromMiddle * 10.0 + 3.0;
        const double across = i % 2 == 0 ? 0.0 : 5.0;
        chain.push_back(second ? ChainPoint{{across, along, 0.0}}
                               : ChainPoint{{along, across, 0.0}});
    }
    return chain;
}

// Up to the right, or down to the right for the second.
Chain steps(int vertices, bool second) {
    Chain chain;
    const int half = vertices / 2;
    double x = -5.0 * half;
    double y = second ? -x : x;
    for (int i = 0; i < vertices; ++i) {
        chain.push_back({{x, y + (second ? 1.0 : 0.0), 0.0}});
        (i % 2 == 0 ? x : y) += i % 2 != 0 && second ? -10.0 : 10.0;
    }
    return chain;
}

template <Chain (*shape)(int, bool)>
void search(benchmark::State& state) {
    const int vertices = static_cast<int>(state.range(0));
    const Chain first = shape(vertices, false);
    const Chain second = shape(vertices, true);
    int found = 0;
    for (auto _ : state) {
        found = 0;
        CrossingSearch search({first, second, false, false}, CrossRule::cross);
        SegmentPair pair{};
        bool onBoth = false;
        while (search.next(pair, onBoth)) {
            found += onBoth ? 1 : 0;
        }
    }
    state.counters["on both"] = found;
    state.SetItemsProcessed(state.iterations() * (vertices - 1) * (vertices - 1));
}

template <Chain (*shape)(int, bool)>
void solveEveryPair(benchmark::State& state) {
    const int vertices = static_cast<int>(state.range(0));
    const Chain first = shape(vertices, false);
    const Chain second = shape(vertices, true);
    int found = 0;
    for (auto _ : state) {
        found = 0;
        double x[3] = {0.0, 0.0, 0.0};
        for (std::size_t i = 0; i + 1 < first.size(); ++i) {
            for (std::size_t j = 0; j + 1 < second.size(); ++j) {
                const int r = gx_linexline(first[i].xyz, first[i + 1].xyz, second[j].xyz,
                                           second[j + 1].xyz, x);
                const auto code = CMlineEdit::PositionConnection;
                const bool inside = code(first[i].xyz, x) == code(x, first[i + 1].xyz) &&
                                    code(second[j].xyz, x) == code(x, second[j + 1].xyz);
                found += r == 3 ? 1 : 0;
                benchmark::DoNotOptimize(inside);
            }
        }
    }
    state.counters["on both"] = found;
    state.SetItemsProcessed(state.iterations() * (vertices - 1) * (vertices - 1));
}

BENCHMARK(search<zigzag>)->RangeMultiplier(10)->Range(10, 1000);
BENCHMARK(solveEveryPair<zigzag>)->RangeMultiplier(10)->Range(10, 1000);
BENCHMARK(search<steps>)->RangeMultiplier(10)->Range(10, 1000);
BENCHMARK(solveEveryPair<steps>)->RangeMultiplier(10)->Range(10, 1000);

} // namespace
