#include "breakList.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace mledit;

namespace {

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
        // Halves lie inside drawn intervals and gaps, whole numbers on breaks.
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

} // namespace
