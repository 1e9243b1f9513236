#include "CMlineEdit.h"

#include "KdDbMline.h"
#include "MlineBuilder.h"
#include "breakList.h"
#include "parameterLists.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace {

constexpr double kLength = 10.0; // of each segment

// A straight chain along x of so many segments, one element on it with offset 0.5.
class GapCutting : public ::testing::Test {
protected:
    CMlineEdit run;
    KdDbMline mline;
    CMlineSegment seg;

    void SetUp() override {
        build({{0, 0, 0},
               {kLength, 0, 0},
               {2 * kLength, 0, 0},
               {3 * kLength, 0, 0},
               {4 * kLength, 0, 0}},
              false);
    }
    void build(const std::vector<KdGePoint3d>& chain, bool closed) {
        const double offsets[] = {0.5, -0.5};
        KdDbMline fresh;
        orvex::testing::buildMline(fresh, chain, offsets, closed);
        mline.copyFrom(&fresh);
        seg.m_mline = &mline;
    }
    // Cuts element 0 between places given by segment and distance along it.
    void cut(int s, double d1, int t, double d2) {
        const double start[3] = {s * kLength + d1, 0.5, 0};
        const double end[3] = {t * kLength + d2, 0.5, 0};
        run.Cut_Mongline(&seg, 0, start, s, end, t);
    }
    std::vector<BreakList> lists() const {
        std::vector<BreakList> all;
        for (int v = 0; v < mline.numVertices(); ++v) {
            all.push_back(lineList(&mline, v, 0));
        }
        return all;
    }
};

const BreakList kWhole = {0.5, 0};
const BreakList kNone = {0.5};

using Lists = std::vector<BreakList>;

TEST_F(GapCutting, RewritesTheSegmentsThatTheGapTouches) {
    struct {
        const char* name;
        int s;
        double d1;
        int t;
        double d2;
        Lists after;
    } const cases[] = {
        {"inside one", 1, 3, 1, 5, {kWhole, {0.5, 0, 3, 5}, kWhole, kWhole, kWhole}},
        {"over a vertex", 1, 7, 2, 3, {kWhole, {0.5, 0, 7}, {0.5, 3}, kWhole, kWhole}},
        {"over several", 0, 7, 3, 3, {{0.5, 0, 7}, kNone, kNone, {0.5, 3}, kWhole}},
        {"ends on a vertex: the segment before loses its end",
         0,
         7,
         2,
         0,
         {{0.5, 0, 7}, kNone, kWhole, kWhole, kWhole}},
        {"ends on the vertex behind its start",
         0,
         7,
         1,
         0,
         {{0.5, 0, 7, 10}, kWhole, kWhole, kWhole, kWhole}},
        {"starts on a vertex", 1, 0, 2, 3, {kWhole, kNone, {0.5, 3}, kWhole, kWhole}},
        {"starts on a vertex as the end before",
         0,
         10,
         2,
         3,
         {kWhole, kNone, {0.5, 3}, kWhole, kWhole}},
        {"from vertex to vertex", 1, 0, 3, 0, {kWhole, kNone, kNone, kWhole, kWhole}},
        {"one whole segment leaves an empty stretch",
         1,
         0,
         1,
         10,
         {kWhole, {0.5, 10}, kWhole, kWhole, kWhole}},
        {"to the segment's end", 1, 3, 1, 10, {kWhole, {0.5, 0, 3, 10}, kWhole, kWhole, kWhole}},
        {"from the chain's start", 0, 0, 0, 4, {{0.5, 4}, kWhole, kWhole, kWhole, kWhole}},
        {"no length", 1, 3, 1, 3, {kWhole, kWhole, kWhole, kWhole, kWhole}},
        {"start past its segment", 1, 12, 1, 5, {kWhole, kWhole, kWhole, kWhole, kWhole}},
        {"end before its segment", 1, 3, 1, -2, {kWhole, kWhole, kWhole, kWhole, kWhole}},
        {"start off, end on another", 0, -1, 2, 5, {kWhole, kWhole, kWhole, kWhole, kWhole}},
    };
    for (const auto& c : cases) {
        SetUp();
        cut(c.s, c.d1, c.t, c.d2);
        EXPECT_EQ(lists(), c.after) << c.name;
        EXPECT_EQ(lineList(&mline, 1, 1), (BreakList{-0.5, 0})) << c.name;
        SetUp();
        cut(c.t, c.d2, c.s, c.d1);
        EXPECT_EQ(lists(), c.after) << c.name << ", ends swapped";
    }
}

// Far from the origin points are equal at a larger distance.
TEST_F(GapCutting, OfLessThanTheRelativeToleranceDoesNothing) {
    build({{1e7, 0, 0}, {1e7 + 10, 0, 0}}, false);
    const double start[3] = {1e7 + 5, 0.5, 0};
    const double near[3] = {1e7 + 5.0005, 0.5, 0};
    run.Cut_Mongline(&seg, 0, start, 0, near, 0);
    EXPECT_EQ(lists()[0], kWhole);
    const double far[3] = {1e7 + 5.002, 0.5, 0};
    run.Cut_Mongline(&seg, 0, start, 0, far, 0);
    EXPECT_EQ(lists()[0].size(), 4U);
}

TEST_F(GapCutting, OnAClosedChainNeverRunsAcrossTheClosingVertex) {
    build({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, true);
    // Element 0 lies half a unit inside, each side from 0.5 to 9.5.
    const double onClosing[3] = {0.5, 4.5, 0};
    const double onFirst[3] = {3.5, 0.5, 0};
    run.Cut_Mongline(&seg, 0, onClosing, 3, onFirst, 0);
    const double offset = lineList(&mline, 0, 0)[0];
    EXPECT_EQ(lists(), (Lists{{offset, 0, 3}, {offset}, {offset}, {offset, 5}}));
}

// Element 0's closing side lies on x = 0, far below the origin.
TEST_F(GapCutting, InsideTheClosingSegment) {
    build({{-0.5, -100, 0}, {9.5, -100, 0}, {9.5, -90, 0}, {-0.5, -90, 0}}, true);
    const double upper[3] = {0, -92.5, 0};
    const double lower[3] = {0, -95.5, 0};
    run.Cut_Mongline(&seg, 0, lower, 3, upper, 3);
    ASSERT_EQ(lists()[3].size(), 4U);
    EXPECT_NEAR(lists()[3][2], 2.0, 1e-12); // from (0, -90.5)
    EXPECT_NEAR(lists()[3][3], 5.0, 1e-12);
    EXPECT_EQ(lists()[0].size(), 2U);
}

// Both ends equal the vertex, but not each other: each moves to the other's segment.
TEST_F(GapCutting, WhoseEndsPassEachOtherOnAVertexDoesNothing) {
    build({{1e7 - 10, 0, 0}, {1e7, 0, 0}, {1e7 + 10, 0, 0}}, false);
    const double behind[3] = {1e7 + 0.0009, 0.5, 0};
    const double before[3] = {1e7 - 0.0009, 0.5, 0};
    run.Cut_Mongline(&seg, 0, behind, 0, before, 1);
    EXPECT_EQ(lists(), (Lists{kWhole, kWhole, kWhole}));
}

TEST_F(GapCutting, StopsAtWhatDoesntExist) {
    const Lists before = lists();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double start[3] = {3, 0.5, 0};
    const double end[3] = {5, 0.5, 0};
    const double nowhere[3] = {nan, nan, nan};
    run.Cut_Mongline(&seg, 2, start, 0, end, 0);
    run.Cut_Mongline(&seg, -1, start, 0, end, 0);
    run.Cut_Mongline(&seg, 0, start, -1, end, 0);
    run.Cut_Mongline(&seg, 0, start, 0, end, 5);
    run.Cut_Mongline(&seg, 0, start, 0, nowhere, 0);
    run.Cut_Mongline(&seg, 0, nowhere, 0, end, 0);
    EXPECT_EQ(lists(), before);
    seg.m_mline = nullptr;
    run.Cut_Mongline(&seg, 0, start, 0, end, 0);

    storeLineList(&mline, 0, 0, {});
    seg.m_mline = &mline;
    const double onAxis[3] = {3, 0, 0};
    const double further[3] = {5, 0, 0};
    run.Cut_Mongline(&seg, 0, onAxis, 0, further, 0);
    EXPECT_TRUE(lists()[0].empty());
}

// Whatever was cut before: a gap given backwards gives the same lists, and a repetition changes
// nothing more within one segment.
TEST_F(GapCutting, IsTheSameGivenBackwards) {
    std::mt19937 random(20240229);
    std::uniform_int_distribution<int> segment(0, 3);
    std::uniform_int_distribution<int> eighths(0, 80);
    for (int round = 0; round < 400; ++round) {
        if (round % 10 == 0) {
            SetUp();
        }
        KdDbMline other;
        other.copyFrom(&mline);
        const int s = segment(random);
        const int t = segment(random);
        const double d1 = eighths(random) / 8.0;
        const double d2 = eighths(random) / 8.0;
        cut(s, d1, t, d2);
        const Lists forward = lists();
        mline.copyFrom(&other);
        cut(t, d2, s, d1);
        ASSERT_EQ(lists(), forward) << s << ":" << d1 << " to " << t << ":" << d2;
        if (s == t) {
            cut(s, d1, t, d2);
            ASSERT_EQ(lists(), forward) << "again " << s << ":" << d1 << " to " << t << ":" << d2;
        }
    }
}

TEST_F(GapCutting, LoadsOneListAtATime) {
    storeLineList(&mline, 1, 1, {-0.5, 0, 2, 4});
    run.setRealVector(&mline, 1, 1);
    EXPECT_EQ(run.m_breaks, (BreakList{-0.5, 0, 2, 4}));
    run.setRealVector(&mline, 99, 0);
    EXPECT_EQ(run.m_breaks, kWhole);
    run.setRealVector(nullptr, 0, 0);
    EXPECT_TRUE(run.m_breaks.empty());
    EXPECT_GE(run.m_breaks.capacity(), 128U);
}

} // namespace
