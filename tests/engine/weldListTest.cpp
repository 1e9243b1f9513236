#include "weldList.h"

#include <gtest/gtest.h>

namespace {

constexpr double e = 0.5;
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
        {gap, 3, 5, {e, 0}},       // at the gap's ends
        {gap, 3.05, 4.96, {e, 0}}, // within the aperture of them
        {gap, 1, 6, {e, 0}},
        {gap, 4, 4.5, gap},     // inside the gap: nothing lies between
        {gap, 4, 6, {e, 0, 3}}, // the stretch from 5 on is given up
        {gap, 1, 4, {e, 0, 5}}, // and here the one up to 3 reaches on to 5
        {{e, 0, 3, 5, 7, 9}, 4, 8, {e, 0, 3, 9}},
        {{e, 2, 6}, 2, 4, {e, 6}}, // the first break at the lower end goes at once
        {{e}, 1, 4, {e, 0}},       // an element without any run is whole again
        {{9, 12}, 3, 5, {9, 12}},  // no entry lies before the upper end
        {{}, 1, 4, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(
            weldWithin(c.before, lowerEnd(c.before, c.from), upperEnd(c.before, c.to), kAperture),
            c.after)
            << testing::PrintToString(c.before) << " from " << c.from << " to " << c.to;
    }
}

TEST(WeldList, OnSeveralSegmentsEachListKeepsItsOuterPart) {
    const BreakList gap = {e, 0, 3, 5};
    EXPECT_EQ(weldToSegmentEnd(gap, lowerEnd(gap, 3.05), kAperture), (BreakList{e, 0}));
    EXPECT_EQ(weldToSegmentEnd(gap, lowerEnd(gap, 4), kAperture), (BreakList{e, 0, 3}));
    EXPECT_EQ(weldToSegmentEnd({e, 2, 6}, {2, false}, 0.0), (BreakList{e, 0})) << "left bare";

    EXPECT_EQ(weldFromSegmentStart(gap, upperEnd(gap, 4.95), kAperture), (BreakList{e, 0}));
    EXPECT_EQ(weldFromSegmentStart(gap, {4, false}, 0.0), (BreakList{e, 5}));
    EXPECT_EQ(weldFromSegmentStart(gap, {1, false}, 0.0), (BreakList{e, 0, 3, 5}));
    EXPECT_EQ(weldFromSegmentStart({9, 12}, {1, false}, 0.0), (BreakList{9, 12}));
    EXPECT_EQ(weldFromSegmentStart({e}, {1, false}, 0.0), (BreakList{e})) << "stays bare";

    EXPECT_EQ(weldWhole({e, 3, 5}), (BreakList{e, 0}));
    EXPECT_EQ(weldWhole({e}), (BreakList{e, 0}));
    EXPECT_EQ(weldWhole({}), BreakList{});
}

TEST(WeldList, ABreakALittleAheadCountsAsPassed) {
    const BreakList list = {e, 0, 3, 5};
    const struct {
        double distance;
        bool inGap;
    } cases[] = {{-1, true},  {-0.05, false}, {2.8, false}, {2.95, true},
                 {4.8, true}, {4.95, false},  {9, false}};
    for (const auto& c : cases) {
        EXPECT_EQ(standsInGap(list, c.distance, kAperture), c.inGap) << c.distance;
    }
    EXPECT_TRUE(standsInGap({}, 1, kAperture));
}

} // namespace
