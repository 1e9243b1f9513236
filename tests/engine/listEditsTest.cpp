// One list at a time: what holds for every cut, and what shifts make of lists without runs.

#include "breakList.h"
#include "shiftList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace mledit;

namespace {

constexpr double e = 0.5; // the offset

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
TEST(BreakLists, anyGapRemovesExactlyWhatLiesInIt) {
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
        for (int half = 0; half < 2 * kLength; ++half) {
            const double a = 0.5 * half;
            for (int length = 1; a + length <= kLength; ++length) {
                const double b = a + length;
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

TEST(ShiftList, aVertexMovesAlongTheSegment) {
    expectAll({{{e, 0, 5, 7}, 3, {e, 0, 2, 4}},
               {{e, 0, 5, 7}, 6, {e, 1}}, // in the gap
               {{e, 0, 5, 7}, 8, {e, 0}}, // behind all breaks, on the last stretch
               {{e, 0, 5, 7}, 5, {e, 2}}, // a break at the start goes with those before
               {{e}, 3, {e}}},
              shortenFromStart);
    // What is gained stays undrawn, also of an unbroken element.
    expectAll({{{e, 0, 5, 7}, 2, {e, 2, 7, 9}}, {{e, 0}, 2, {e, 2}}, {{}, 2, {}}}, lengthenAtStart);
    expectAll({{{e, 0, 5, 7}, 9, {e, 0, 5, 7}},
               {{e, 0, 5, 7}, 5, {e, 0}}, // a break at the end goes
               {{e}, 0.1, {e}},           // the offset isn't compared
               {{}, 1, {}}},
              endAt);
    // Along the axis the offset stays finite; sin 30 degrees is a half.
    EXPECT_NEAR(alongMiter(0.5, std::acos(-1.0) / 6.0), 1.0, 1e-15);
    EXPECT_EQ(alongMiter(0.5, 0.0), 0.5 / std::sin(0.005));
}

} // namespace
