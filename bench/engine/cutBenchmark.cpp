// The parts of a cut cycle on chains of 10, 100 and 1000 vertices with four elements. A pick has to
// read the whole chain; mapping and cutting should not depend on its length.

#include "CMlineEdit.h"

#include "KdDbMline.h"
#include "MlineBuilder.h"
#include "breakList.h"
#include "parameterLists.h"

#include <benchmark/benchmark.h>

#include <array>

using namespace mledit;

namespace {

constexpr std::array<double, 4> kOffsets = {1.5, 0.5, -0.5, -1.5};
constexpr double kStep = 10.0;

// A zigzag, so that every vertex has a miter of its own.
std::vector<KdGePoint3d> zigzag(int vertices) {
    std::vector<KdGePoint3d> chain;
    chain.reserve(static_cast<std::size_t>(vertices));
    for (int i = 0; i < vertices; ++i) {
        chain.push_back({i * kStep, i % 2 == 0 ? 0.0 : kStep, 0.0});
    }
    return chain;
}

struct PickedMline {
    KdDbMline mline;
    CMlineEdit run;

    explicit PickedMline(int vertices) {
        orvex::testing::buildMline(mline, zigzag(vertices), kOffsets);
        CMlineSegment& seg = run.m_first;
        seg.m_mline = &mline;
        seg.m_numVertices = vertices;
        seg.m_numElements = static_cast<int>(kOffsets.size());
        fillTable();
        // The middle of the middle segment of element 0.
        seg.m_segment = vertices / 2;
        for (int i = 0; i < 3; ++i) {
            seg.m_pickPoint[i] =
                (seg.m_ptList[0][seg.m_segment][i] + seg.m_ptList[0][seg.m_segment + 1][i]) / 2.0;
        }
    }
    void fillTable() {
        CMlineSegment& seg = run.m_first;
        run.ptListInitialize(&mline, seg.m_numVertices, seg.m_numElements, &seg.m_ptList,
                             &seg.m_ptListSize);
    }
    // A place on an element, as a part of the way along a segment.
    [[nodiscard]] std::array<double, 3> place(int element, int segment, double part) const {
        const PointRow row = run.m_first.m_ptList[element];
        std::array<double, 3> point{};
        for (std::size_t i = 0; i < 3; ++i) {
            point[i] = row[segment][i] + part * (row[segment + 1][i] - row[segment][i]);
        }
        return point;
    }
};

void positionTable(benchmark::State& state) {
    PickedMline picked(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        picked.fillTable();
        benchmark::DoNotOptimize(picked.run.m_first.m_ptList);
    }
    state.SetComplexityN(state.range(0));
}

void mappingToEveryElement(benchmark::State& state) {
    PickedMline picked(static_cast<int>(state.range(0)));
    CMlineSegment& seg = picked.run.m_first;
    for (auto _ : state) {
        for (int k = 0; k < seg.m_numElements; ++k) {
            picked.run.mappingToSpecifyMongline(&seg, k, nullptr);
        }
        benchmark::DoNotOptimize(seg.m_mappedPoint);
    }
    state.SetComplexityN(state.range(0));
}

// A cut within one segment and the whole line again.
void cutInOneSegment(benchmark::State& state) {
    PickedMline picked(static_cast<int>(state.range(0)));
    CMlineSegment& seg = picked.run.m_first;
    const int segment = seg.m_segment;
    const auto start = picked.place(0, segment, 0.25);
    const auto end = picked.place(0, segment, 0.75);
    const BreakList whole = lineList(&picked.mline, segment, 0);
    for (auto _ : state) {
        picked.run.Cut_Mongline(&seg, 0, start.data(), segment, end.data(), segment);
        storeLineList(&picked.mline, segment, 0, whole);
    }
    if (lineList(&picked.mline, segment, 0) != whole) {
        state.SkipWithError("the cut left something behind");
    }
    state.SetComplexityN(state.range(0));
}

// From the first segment to the last: every list between is rewritten.
void cutOverTheWholeChain(benchmark::State& state) {
    PickedMline picked(static_cast<int>(state.range(0)));
    CMlineSegment& seg = picked.run.m_first;
    const int last = seg.m_numVertices - 2;
    const auto start = picked.place(0, 0, 0.5);
    const auto end = picked.place(0, last, 0.5);
    for (auto _ : state) {
        picked.run.Cut_Mongline(&seg, 0, start.data(), 0, end.data(), last);
    }
    state.SetComplexityN(state.range(0));
}

BENCHMARK(positionTable)->RangeMultiplier(10)->Range(10, 1000)->Complexity();
BENCHMARK(mappingToEveryElement)->RangeMultiplier(10)->Range(10, 1000)->Complexity();
BENCHMARK(cutInOneSegment)->RangeMultiplier(10)->Range(10, 1000)->Complexity();
BENCHMARK(cutOverTheWholeChain)->RangeMultiplier(10)->Range(10, 1000)->Complexity();

} // namespace
