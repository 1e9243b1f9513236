// The functions of break lists, each on paper: {1, 0, 3, 5} is drawn from 0 to 3 and from 5 on.

#include "shiftList.h"
#include "trimList.h"
#include "vectorMath.h"
#include "weldList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mledit {

namespace {

const BreakList kGap{1, 0, 3, 5};
const BreakList kWhole{1, 0};
const BreakList kLate{1, 6, 8}; // drawn from 6 to 8

using Lists = std::vector<std::pair<BreakList, BreakList>>; // what comes out, what is to

void expectAll(const Lists& lists) {
    for (std::size_t i = 0; i < lists.size(); ++i) {
        EXPECT_THAT(lists[i].first, ::testing::Pointwise(::testing::DoubleEq(), lists[i].second))
            << "row " << i;
    }
}

TEST(BreakLists, areCut) {
    expectAll({
        {cutWithin(kWhole, 3, 6, true), {1, 0, 3, 6}},
        {cutWithin(kWhole, 0, 6, true), {1, 6}},
        {cutWithin(kWhole, 3, 6, false), kWhole},
        {cutWithin(kGap, 2, 4, true), {1, 0, 2, 5}},
        {cutWithin(kGap, 4, 7, true), {1, 0, 3, 7}},
        {cutWithin(kGap, 3, 5, true), kGap},
        {cutToSegmentEnd(kWhole, 3, true), {1, 0, 3}},
        {cutToSegmentEnd(kWhole, 0, false), {1}},
        {cutToSegmentEnd(kGap, 5, true), {1, 0, 3, 5}},
        {cutToSegmentEnd(kGap, 2, true), {1, 0, 2}},
        {cutFromSegmentStart(kWhole, 4, true), {1, 4}},
        {cutFromSegmentStart(kGap, 4, true), {1, 4, 5}},
        {cutFromSegmentStart(kGap, 5, true), {1, 5}},
        {cutFromSegmentStart(kLate, 9, false), {1}},
    });
}

TEST(BreakLists, areTrimmed) {
    using enum TrimPosition;
    expectAll({
        {keepUpTo(kWhole, 4, true), {1, 0, 4}},
        {keepUpTo(kGap, 4, true), {1, 0, 3}},
        {keepUpTo(kGap, 2, true), {1, 0, 2}},
        {keepUpTo(kGap, 5, true), kGap}, // a break at the point is reached
        {keepUpTo(kLate, 2, true), {1, 2}},
        {keepUpTo(kLate, 0.5, true), {1, 0.5}}, // before the offset, too
        {keepUpTo(kWhole, 4, false), {1, 0, 4}},
        {keepFrom(kWhole, 4, within), {1, 4}},
        {keepFrom(kGap, 4, within), {1, 5}},
        {keepFrom(kGap, 3, within), {1, 3, 3, 5}}, // here it isn't
        {keepFrom(kGap, 2, within), {1, 2, 3, 5}},
        {keepFrom(kLate, 2, within), {1, 2, 8}},
        {keepFrom(kGap, 2, beforeStart), {1, -2, 3, 5}},
        {keepFrom(kWhole, 12, beyondEnd), {1, 0, 12}},
        {keepFrom({1}, 4, within), {1}},
    });
}

TEST(BreakLists, areWelded) {
    constexpr double kNear = 0.4;
    expectAll({
        {weldWithin(kGap, {2, false}, {6, false}, kNear), kWhole},
        {weldWithin(kGap, {4, true}, {5, false}, kNear), kGap}, // up to the end, and not at it
        {weldWithin(kGap, {3.3, true}, {9, false}, kNear), kWhole},
        {weldWithin(kGap, {3.3, false}, {9, false}, kNear), {1, 0, 3}},
        {weldWithin(kGap, {2, false}, {4.8, true}, kNear), kWhole},
        {weldWithin(kGap, {2, false}, {4.8, false}, kNear), {1, 0, 5}},
        {weldWithin(kLate, {6, false}, {9, false}, kNear), kWhole}, // from the first break
        {weldToSegmentEnd(kGap, {2, false}, kNear), kWhole},
        {weldToSegmentEnd(kGap, {9, false}, kNear), kGap},
        {weldFromSegmentStart({1, 2, 4, 6}, {5, false}, kNear), {1, 6}},
        {weldFromSegmentStart(kGap, {2, false}, kNear), kGap},
        {weldFromSegmentStart({7, 8}, {2, false}, kNear), {7, 8}},
        {weldWhole(kLate), kWhole},
        {weldWhole({}), {}},
    });
    for (const double inside : {2.7, 3.0, 4.0, 4.5}) {
        EXPECT_TRUE(liesInGap(kGap, inside, kNear)) << inside;
    }
    for (const double drawn : {0.0, 2.0, 4.7, 5.0, 6.0}) {
        EXPECT_FALSE(liesInGap(kGap, drawn, kNear)) << drawn;
    }
}

TEST(BreakLists, areShifted) {
    expectAll({
        {unbrokenList(2, kHalfPi), {2, 0}},
        {unbrokenList(2, kPi / 6), {2 / std::sin(kPi / 6), 0}},
        {unbrokenList(2, 0), {2 / std::sin(0.005), 0}},
        {shortenFromStart(kWhole, 2), kWhole},
        {shortenFromStart(kGap, 2), {1, 0, 1, 3}},
        {shortenFromStart(kGap, 3), {1, 2}},
        {lengthenAtStart(kGap, 2), {1, 2, 5, 7}},
        {endAt(kGap, 5), {1, 0, 3}},
        {endAt(kGap, 3), kWhole},
        {endAt({4, 0}, 0), {4}},
        {growAtStart(kGap, 2, 7), {7, 0, 5, 7}},
        {growAtStart({1, 1, 3}, 2, 7), {7, 3, 5}},
        {shrinkAtStart(kGap, 2, 7), {7, 0, 1, 3}},
        {shrinkAtStart(kGap, 4, 7), {7, 1}},
        {beforeNewVertex(kGap, 4), {1, 0, 3}},
        {beforeNewVertex(kGap, 3), kWhole},
        {beforeNewVertex({}, 3), {}},
        {withoutIntervals(kGap), {1}},
        {withoutIntervals({}), {}},
    });
}

} // namespace

} // namespace mledit
