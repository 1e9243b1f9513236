#include "breakList.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// Offset 0.5 along the miter in all lists; distances along the segment.
struct WithinCase {
    BreakList before;
    double from;
    double to;
    BreakList after;
};

TEST(BreakLists, GapWithinOneSegment) {
    const WithinCase cases[] = {
        // whole line
        {{0.5, 0}, 3, 5, {0.5, 0, 3, 5}},
        // gap from 2 to 4, end at 6 open: over it, from in it, to in it, inside it
        {{0.5, 0, 2, 4, 6}, 1, 5, {0.5, 0, 1, 5, 6}},
        {{0.5, 0, 2, 4, 6}, 3, 5, {0.5, 0, 2, 5, 6}},
        {{0.5, 0, 2, 4, 6}, 1, 3, {0.5, 0, 1, 4, 6}},
        {{0.5, 0, 2, 4}, 2.5, 3.5, {0.5, 0, 2, 4}},
        // what isn't drawn stays so
        {{0.5, 0, 3}, 3, 5, {0.5, 0, 3}},
        {{0.5, 6}, 3, 5, {0.5, 6}},
        {{0.5}, 3, 5, {0.5}},
        // a stretch that begins or ends at the gap's ends
        {{0.5, 3}, 3, 5, {0.5, 5}},
        {{0.5, 0, 5}, 3, 5, {0.5, 0, 3}},
        {{0.5, 0, 3, 5}, 3, 5, {0.5, 0, 3, 5}},
        {{0.5, 0, 3, 5}, 5, 7, {0.5, 0, 3, 7}},
        // the old gap inside the new one, and the new one from inside the old
        {{0.5, 0, 3, 5}, 2, 6, {0.5, 0, 2, 6}},
        {{0.5, 0, 3, 5}, 1, 4, {0.5, 0, 1, 5}},
        // from the segment's start, and to its end: the stretch behind has no length
        {{0.5, 0}, 0, 3, {0.5, 3}},
        {{0.5, 0}, 3, 7, {0.5, 0, 3, 7}},
        // ends within 1e-10 of a break count as on it, and stand in its place
        {{0.5, 0, 3, 5}, 3 + 0.9e-10, 5 - 0.9e-10, {0.5, 0, 3 + 0.9e-10, 5 - 0.9e-10}},
        {{0.5, 0, 3, 5}, 5 + 0.9e-10, 7, {0.5, 0, 3, 7}},
        // a stretch that begins before the segment ends with a gap at its start
        {{0.5, -2, 1}, 0, 3, {0.5}},
        // nothing to break
        {{}, 3, 5, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(cutWithin(c.before, c.from, c.to, true), c.after)
            << ::testing::PrintToString(c.before) << " from " << c.from << " to " << c.to;
    }
}

// Whether both ends get a break is decided by the gap's end alone.
TEST(BreakLists, GapThatEndsOnTheSegmentsStartInsertsNothing) {
    EXPECT_EQ(cutWithin({0.5, 0}, 3, 5, false), (BreakList{0.5, 0}));
    EXPECT_EQ(cutWithin({0.5, 0}, 0, 0, false), (BreakList{0.5}));
}

struct EndCase {
    BreakList before;
    double distance;
    bool inserts;
    BreakList after;
};

TEST(BreakLists, FirstSegmentOfALongerGap) {
    const EndCase cases[] = {
        {{0.5, 0}, 3, true, {0.5, 0, 3}},
        {{0.5, 0}, 0, false, {0.5}},
        {{0.5, 0, 2, 4, 6}, 5, true, {0.5, 0, 2, 4, 5}},
        {{0.5, 0, 2}, 3, true, {0.5, 0, 2, 3}}, // from in a gap: the rest turns on
        {{0.5, 0, 3, 5}, 3, true, {0.5, 0, 3}},
        {{0.5}, 3, true, {0.5, 3}},
        {{0.5, -2, 4}, 0, true, {0.5, 0}}, // at the start all goes, whatever its value
    };
    for (const auto& c : cases) {
        EXPECT_EQ(cutToSegmentEnd(c.before, c.distance, c.inserts), c.after)
            << ::testing::PrintToString(c.before) << " from " << c.distance;
    }
}

TEST(BreakLists, LastSegmentOfALongerGap) {
    const EndCase cases[] = {
        {{0.5, 0}, 3, true, {0.5, 3}},
        {{0.5, 0}, 7, false, {0.5}},
        {{0.5, 0, 2, 4, 6}, 5, true, {0.5, 5, 6}},
        {{0.5, 0, 2, 4, 6}, 3, true, {0.5, 3, 4, 6}}, // to in a gap: the gap turns on
        {{0.5, 0, 3, 5}, 3, true, {0.5, 3, 5}},
        {{0.5, 4, 6}, 3, true, {0.5, 3, 4, 6}},
        // all entries beyond the end, the offset included: only the insertion
        {{9.0, 8.0}, 3, true, {9.0, 3.0, 8.0}},
        {{0.5}, 3, true, {0.5, 3}},
        {{}, 3, true, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(cutFromSegmentStart(c.before, c.distance, c.inserts), c.after)
            << ::testing::PrintToString(c.before) << " to " << c.distance;
    }
}

TEST(BreakLists, SegmentsInTheMiddleOfAGapKeepTheirOffset) {
    EXPECT_EQ(cutWhole({0.5, 0, 2, 4, 6}), (BreakList{0.5}));
    EXPECT_EQ(cutWhole({0.5}), (BreakList{0.5}));
    EXPECT_EQ(cutWhole({}), (BreakList{}));
}

// Drawn length of a list on a segment, as painting would see it.
double drawnLength(const BreakList& list, double length) {
    double sum = 0.0;
    for (std::size_t k = 1; k < list.size(); k += 2) {
        sum += (k + 1 < list.size() ? list[k + 1] : length) - list[k];
    }
    return sum;
}

// On all lists with breaks at whole numbers, and all gaps between them: nothing is drawn inside the
// gap afterwards, what is drawn outside stays, and a second cut changes nothing.
TEST(BreakLists, AnyGapRemovesExactlyWhatLiesInIt) {
    constexpr int kLength = 8;
    for (int mask = 0; mask < 1 << kLength; ++mask) {
        BreakList list = {0.5};
        for (int i = 0; i < kLength; ++i) {
            if ((mask >> i & 1) != 0) {
                list.push_back(i);
            }
        }
        for (int from = 0; from < kLength; ++from) {
            for (int to = from + 1; to <= kLength; ++to) {
                // Halves lie inside stretches and gaps, whole numbers on breaks.
                for (const double shift : {0.0, 0.5}) {
                    if (to + shift > kLength) {
                        continue;
                    }
                    const double a = from + shift;
                    const double b = to + shift;
                    const BreakList cut = cutWithin(list, a, b, true);
                    ASSERT_TRUE(std::is_sorted(cut.begin() + 1, cut.end()));
                    double inside = 0.0;
                    for (std::size_t k = 1; k < list.size(); k += 2) {
                        const double end = k + 1 < list.size() ? list[k + 1] : kLength;
                        inside += std::max(0.0, std::min(end, b) - std::max(list[k], a));
                    }
                    ASSERT_EQ(drawnLength(cut, kLength), drawnLength(list, kLength) - inside)
                        << ::testing::PrintToString(list) << " from " << a << " to " << b;
                    ASSERT_EQ(cutWithin(cut, a, b, true), cut);
                }
            }
        }
    }
}

} // namespace
