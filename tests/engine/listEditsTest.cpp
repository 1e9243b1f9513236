// One list at a time: what a cut, a shift, a trim and a weld make of it.

#include "breakList.h"
#include "shiftList.h"
#include "trimList.h"
#include "weldList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

// The old offset, and the one at the new miter.
constexpr double e = 0.5;
constexpr double e2 = 0.7;

struct Row {
    BreakList before;
    double at; // or by
    BreakList after;
};

template <class Edit>
void expectAll(std::initializer_list<Row> rows, Edit edit) {
    for (const Row& row : rows) {
        EXPECT_EQ(edit(row.before, row.at), row.after)
            << testing::PrintToString(row.before) << " at " << row.at;
    }
}

TEST(BreakLists, GapWithinOneSegment) {
    const struct {
        BreakList before;
        double from, to;
        BreakList after;
    } cases[] = {
        {{e, 0, 3, 5}, 5, 7, {e, 0, 3, 7}},
        {{e, 0}, 3, 7, {e, 0, 3, 7}}, // to the segment's end: the stretch behind has no length
        // ends within 1e-10 of a break count as on it, and stand in its place
        {{e, 0, 3, 5}, 3 + 0.9e-10, 5 - 0.9e-10, {e, 0, 3 + 0.9e-10, 5 - 0.9e-10}},
        {{e, 0, 3, 5}, 5 + 0.9e-10, 7, {e, 0, 3, 7}},
        // a stretch that begins before the segment ends with a gap at its start
        {{e, -2, 1}, 0, 3, {e}},
        {{}, 3, 5, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(cutWithin(c.before, c.from, c.to, true), c.after)
            << testing::PrintToString(c.before) << " from " << c.from << " to " << c.to;
    }
    // Whether both ends get a break is decided by the gap's end alone.
    EXPECT_EQ(cutWithin({e, 0}, 3, 5, false), (BreakList{e, 0}));
}

TEST(BreakLists, EndSegmentsOfALongerGap) {
    expectAll({{{e, 0, 2, 4, 6}, 5, {e, 0, 2, 4, 5}},
               {{e, 0, 2}, 3, {e, 0, 2, 3}}, // in a gap: the rest turns on
               {{e, 0, 3, 5}, 3, {e, 0, 3}},
               {{e, -2, 4}, 0, {e, 0}}}, // at the start all goes, whatever its value
              [](const BreakList& list, double at) { return cutToSegmentEnd(list, at, true); });
    expectAll({{{e, 0, 2, 4, 6}, 5, {e, 5, 6}},
               {{e, 0, 2, 4, 6}, 3, {e, 3, 4, 6}}, // in a gap: the gap turns on
               {{e, 0, 3, 5}, 3, {e, 3, 5}},
               {{9, 8}, 3, {9, 3, 8}}, // all lies beyond it, the offset too: only the insertion
               {{}, 3, {}}},
              [](const BreakList& list, double at) { return cutFromSegmentStart(list, at, true); });
}

// Drawn length of a list between two places, as painting would see it.
double drawnLength(const BreakList& list, double from, double to) {
    double sum = 0.0;
    for (std::size_t k = 1; k < list.size(); k += 2) {
        const double end = k + 1 < list.size() ? list[k + 1] : 8.0;
        sum += std::max(0.0, std::min(end, to) - std::max(list[k], from));
    }
    return sum;
}

// On all lists with breaks at whole numbers, and all gaps between them: nothing is drawn inside the
// gap afterwards, what is drawn outside stays, and a second cut changes nothing.
TEST(BreakLists, AnyGapRemovesExactlyWhatLiesInIt) {
    constexpr int kLength = 8;
    int gaps = 0;
    for (int mask = 0; mask < 1 << kLength; ++mask) {
        BreakList list = {0.5};
        for (int i = 0; i < kLength; ++i) {
            if ((mask >> i & 1) != 0) {
                list.push_back(i);
            }
        }
        // Halves lie inside stretches and gaps, whole numbers on breaks.
        for (double a = 0; a < kLength; a += 0.5) {
            for (double b = a + 1; b <= kLength; ++b) {
                const BreakList cut = cutWithin(list, a, b, true);
                ASSERT_TRUE(std::is_sorted(cut.begin() + 1, cut.end()));
                ASSERT_EQ(drawnLength(cut, 0, kLength),
                          drawnLength(list, 0, kLength) - drawnLength(list, a, b))
                    << ::testing::PrintToString(list) << " from " << a << " to " << b;
                ASSERT_EQ(drawnLength(cut, a, b), 0.0);
                ASSERT_EQ(cutWithin(cut, a, b, true), cut);
                ++gaps;
            }
        }
    }
    EXPECT_EQ(gaps, 256 * (36 + 28));
}

TEST(ShiftList, AVertexMovesAlongTheSegment) {
    expectAll({{{e, 0, 5, 7}, 3, {e, 0, 2, 4}},
               {{e, 0, 5, 7}, 6, {e, 1}}, // in the gap
               {{e, 0, 5, 7}, 8, {e, 0}}, // behind all breaks, on the last stretch
               {{e, 0, 5, 7}, 5, {e, 2}}, // a break at the start goes with those before
               {{e}, 3, {e}}},
              shortenFromStart);
    // What is gained stays undrawn, also of an unbroken element.
    expectAll({{{e, 0, 5, 7}, 2, {e, 2, 7, 9}}, {{e, 0}, 2, {e, 2}}, {{}, 2, {}}}, lengthenAtStart);
    expectAll({{{e, 0, 5, 7}, 6, {e, 0, 5}},
               {{e, 0, 5, 7}, 9, {e, 0, 5, 7}},
               {{e, 0, 5, 7}, 5, {e, 0}}, // a break at the end goes
               {{e}, 0.1, {e}},           // the offset isn't compared
               {{}, 1, {}}},
              endAt);
    expectAll({{{e, 0, 5, 7}, 6, {e, 0, 5}}, {{e, 0, 5, 7}, 5, {e, 0}}, {{e, 0, 5, 7}, 0, {e}}},
              beforeNewVertex);
}

TEST(ShiftList, AnElementsStartSlidesToAnotherMiter) {
    expectAll({{{e, 0}, 2, {e2, 0}}, // the run follows its start
               {{e, 3, 5}, 2, {e2, 5, 7}},
               {{e, 1e-11, 5}, 2, {e2, 0, 7}}, // 0 but for a rounding
               {{}, 2, {}}},
              [](BreakList list, double d) { return growAtStart(std::move(list), d, e2); });
    expectAll({{{e, 0}, 2, {e2, 0}},
               {{e, 0, 5, 7}, 3, {e2, 0, 2, 4}},
               {{e, 0, 5, 7}, 6, {e2, 1}},
               {{e}, 2, {e2}}},
              [](BreakList list, double d) { return shrinkAtStart(std::move(list), d, e2); });
    // Along the axis the offset stays finite; sin 30 degrees is a half.
    EXPECT_NEAR(alongMiter(0.5, std::acos(-1.0) / 6.0), 1.0, 1e-15);
    EXPECT_EQ(alongMiter(0.5, 0.0), 0.5 / std::sin(0.005));
}

TEST(TrimList, KeepsWhatLiesBeforeThePoint) {
    expectAll({{{e, 0}, 5, {e, 0, 5}},
               {{e, 0, 2, 4, 6}, 5, {e, 0, 2, 4}}, // on a stretch: it runs open to the end
               {{e, 0, 2, 4, 6}, 3, {e, 0, 2, 3}},
               {{e, 0, 5}, 5 - 1e-11, {e, 0, 5}}, // a break at the point counts as reached
               {{e, 0, 5}, 5 - 1e-9, {e, 0}},
               {{e}, 5, {e, 5}}, // drawn again from there on
               {{5}, 5, {5}},    // the offset is compared like a break
               {{}, 3, {}}},
              [](const BreakList& list, double at) { return keepUpTo(list, at, true); });
    EXPECT_EQ(keepUpTo({e, 0, 6}, 3, false), (BreakList{e, 0, 6, 3})) << "appended unseen";
}

TEST(TrimList, KeepsWhatLiesBehindThePoint) {
    expectAll(
        {{{e, 0, 2, 4, 6}, 5, {e, 5, 6}},
         {{e, 0, 2, 4, 6}, 3, {e, 4, 6}},
         {{e, 0, 2, 4, 6}, 7, {e}},
         {{e, 6, 8}, 5, {e, 5, 8}}, // the first break goes in any case
         {{e, 0, 5}, 5, {e, 5, 5}}, // a break at the point isn't reached
         {{e}, 5, {e}}},
        [](const BreakList& list, double at) { return keepFrom(list, at, TrimPlace::within); });
    EXPECT_EQ(keepFrom({e, 1, 2, 4}, 2, TrimPlace::behindStart), (BreakList{e, -2, 2, 4}));
    EXPECT_EQ(keepFrom({e, 0, 2}, 9, TrimPlace::beyondEnd), (BreakList{e, 0, 2, 9}));
}

constexpr double kAperture = 0.1;

// Ends as the tool makes them: each asks the list whether a break at it lies between the two.
WeldEnd lowerEnd(const BreakList& list, double distance) {
    return {distance, standsInGap(list, distance, kAperture)};
}
WeldEnd upperEnd(const BreakList& list, double distance) {
    return {distance, !standsInGap(list, distance, kAperture)};
}

TEST(WeldList, OnOneSegmentTheBreaksBetweenGo) {
    const BreakList gap = {e, 0, 3, 5};
    const struct {
        BreakList before;
        double from, to;
        BreakList after;
    } cases[] = {
        {gap, 3.05, 4.96, {e, 0}}, // within the aperture of the gap's ends
        {gap, 1, 6, {e, 0}},
        {gap, 4, 4.5, gap},     // inside the gap: nothing lies between
        {gap, 4, 6, {e, 0, 3}}, // the stretch from 5 on is given up
        {gap, 1, 4, {e, 0, 5}}, // and here the one up to 3 reaches on to 5
        {{e, 0, 3, 5, 7, 9}, 4, 8, {e, 0, 3, 9}},
        {{e, 2, 6}, 2, 4, {e, 6}}, // the first break at the lower end goes at once
        {{e}, 1, 4, {e, 0}},       // an element without any run is whole again
        {{9, 12}, 3, 5, {9, 12}},  // no entry lies before the upper end
    };
    for (const auto& c : cases) {
        EXPECT_EQ(
            weldWithin(c.before, lowerEnd(c.before, c.from), upperEnd(c.before, c.to), kAperture),
            c.after)
            << testing::PrintToString(c.before) << " from " << c.from << " to " << c.to;
    }
    EXPECT_FALSE(standsInGap(gap, 2.8, kAperture));
    EXPECT_TRUE(standsInGap(gap, 2.95, kAperture)) << "a break a little ahead counts as passed";
}

TEST(WeldList, OnSeveralSegmentsEachListKeepsItsOuterPart) {
    const BreakList gap = {e, 0, 3, 5};
    EXPECT_EQ(weldToSegmentEnd(gap, lowerEnd(gap, 3.05), kAperture), (BreakList{e, 0}));
    EXPECT_EQ(weldToSegmentEnd(gap, lowerEnd(gap, 4), kAperture), (BreakList{e, 0, 3}));
    EXPECT_EQ(weldToSegmentEnd({e, 2, 6}, {2, false}, 0.0), (BreakList{e, 0})) << "left bare";

    EXPECT_EQ(weldFromSegmentStart(gap, upperEnd(gap, 4.95), kAperture), (BreakList{e, 0}));
    EXPECT_EQ(weldFromSegmentStart(gap, {4, false}, 0.0), (BreakList{e, 5}));
    EXPECT_EQ(weldFromSegmentStart({9, 12}, {1, false}, 0.0), (BreakList{9, 12}));
    EXPECT_EQ(weldFromSegmentStart({e}, {1, false}, 0.0), (BreakList{e})) << "stays bare";
    EXPECT_EQ(weldWhole({e}), (BreakList{e, 0}));
}

} // namespace
