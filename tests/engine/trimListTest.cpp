#include "trimList.h"

#include <gtest/gtest.h>

namespace {

TEST(TrimList, KeepsWhatLiesBeforeThePoint) {
    constexpr bool kAhead = true;
    const struct {
        BreakList before;
        double distance;
        bool ahead;
        BreakList after;
    } cases[] = {
        {{0.5, 0}, 5, kAhead, {0.5, 0, 5}},
        {{0.5, 0, 2, 4, 6}, 5, kAhead, {0.5, 0, 2, 4}}, // on a stretch: it runs open to the end
        {{0.5, 0, 2, 4, 6}, 3, kAhead, {0.5, 0, 2, 3}},
        {{0.5, 0, 2, 4, 6}, 7, kAhead, {0.5, 0, 2, 4, 6, 7}},
        {{0.5, 0, 5}, 5, kAhead, {0.5, 0, 5}},
        {{0.5, 0, 5}, 5 - 1e-11, kAhead, {0.5, 0, 5}}, // a break at the point counts as reached
        {{0.5, 0, 5}, 5 - 1e-9, kAhead, {0.5, 0}},
        {{0.5}, 5, kAhead, {0.5, 5}}, // drawn again from there on
        {{5}, 5, kAhead, {5}},        // the offset is compared like a break
        {{0.5, 6, 8}, 5, kAhead, {0.5, 5}},
        {{0.5, 0, 2, 4}, 7, kAhead, {0.5, 0, 2, 4, 7}},
        {{0.5, 0, 2, 4, 6}, 3, !kAhead, {0.5, 0, 2, 4, 6, 3}}, // appended unseen
        {{}, 3, kAhead, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(keepUpTo(c.before, c.distance, c.ahead), c.after)
            << testing::PrintToString(c.before) << " up to " << c.distance;
    }
}

TEST(TrimList, KeepsWhatLiesBehindThePoint) {
    using enum TrimPlace;
    const struct {
        BreakList before;
        double distance;
        TrimPlace place;
        BreakList after;
    } cases[] = {
        {{0.5, 0}, 5, within, {0.5, 5}},
        {{0.5, 0, 2, 4, 6}, 5, within, {0.5, 5, 6}},
        {{0.5, 0, 2, 4, 6}, 3, within, {0.5, 4, 6}},
        {{0.5, 0, 2, 4, 6}, 7, within, {0.5}},
        {{0.5, 0, 2, 4}, 7, within, {0.5, 7}},
        {{0.5, 6, 8}, 5, within, {0.5, 5, 8}}, // the first break goes in any case
        {{0.5, 0, 5}, 5, within, {0.5, 5, 5}}, // a break at the point isn't reached
        {{0.5, 0}, 2, behindStart, {0.5, -2}}, // reaches back
        {{0.5, 1, 2, 4}, 2, behindStart, {0.5, -2, 2, 4}},
        {{0.5, 0, 2}, 9, beyondEnd, {0.5, 0, 2, 9}}, // appended unseen
        {{0.5}, 9, beyondEnd, {0.5, 9}},
        {{0.5}, 5, within, {0.5}},
        {{}, 5, beyondEnd, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(keepFrom(c.before, c.distance, c.place), c.after)
            << testing::PrintToString(c.before) << " from " << c.distance;
    }
}

} // namespace
