#include "CMlineEdit.h"

#include "MlineBuilder.h"
#include "breakList.h"
#include "parameterLists.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <sstream>

namespace {

constexpr double kLength = 10.0; // of each segment

// A straight chain along x of so many segments, one element on it with offset 0.5.
class GapCutting : public ::testing::Test {
protected:
    CMlineEdit run;
    KdDbMline mline;
    CMlineSegment seg;

    void SetUp() override { build({{0, 0, 0}, {10, 0, 0}, {20, 0, 0}, {30, 0, 0}, {40, 0, 0}}); }
    void build(const std::vector<KdGePoint3d>& chain, bool closed = false) {
        const double offsets[] = {0.5, -0.5};
        KdDbMline fresh;
        orvex::testing::buildMline(fresh, chain, offsets, closed);
        mline.copyFrom(&fresh);
        seg.m_mline = &mline;
    }
    // Cuts element 0 between places by segment and distance along it, the chain's start at x0.
    void cut(int s, double d1, int t, double d2, double x0 = 0.0) {
        const double start[3] = {x0 + s * kLength + d1, 0.5, 0};
        const double end[3] = {x0 + t * kLength + d2, 0.5, 0};
        run.Cut_Mongline(&seg, 0, start, s, end, t);
    }
    // "0 7, 3": the breaks of element 0 by segment
    std::string text() const {
        std::ostringstream out;
        for (int v = 0; v + 1 < mline.numVertices(); ++v) {
            const BreakList list = lineList(&mline, v, 0);
            out << (v > 0 ? "," : "");
            for (std::size_t i = 1; i < list.size(); ++i) {
                out << (v + i > 1 ? " " : "") << list[i];
            }
        }
        return out.str();
    }
    std::vector<BreakList> lists() const {
        std::vector<BreakList> all;
        for (int v = 0; v < mline.numVertices(); ++v) {
            all.push_back(lineList(&mline, v, 0));
        }
        return all;
    }
};

using Lists = std::vector<BreakList>;

TEST_F(GapCutting, RewritesTheSegmentsThatTheGapTouches) {
    struct {
        const char* name;
        int s;
        double d1;
        int t;
        double d2;
        std::string after;
    } const cases[] = {
        {"over a vertex", 1, 7, 2, 3, "0, 0 7, 3, 0"},
        {"over several", 0, 7, 3, 3, "0 7,,, 3"},
        {"ends on a vertex: the segment before loses its end", 0, 7, 2, 0, "0 7,, 0, 0"},
        {"ends on the vertex behind its start", 0, 7, 1, 0, "0 7 10, 0, 0, 0"},
        {"starts on a vertex as the end before", 0, 10, 2, 3, "0,, 3, 0"},
        {"from vertex to vertex", 1, 0, 3, 0, "0,,, 0"},
        {"one whole segment leaves an empty stretch", 1, 0, 1, 10, "0, 10, 0, 0"},
        {"from the chain's start", 0, 0, 0, 4, "4, 0, 0, 0"},
        {"start past its segment", 1, 12, 1, 5, "0, 0, 0, 0"},
        {"end before its segment", 1, 3, 1, -2, "0, 0, 0, 0"},
    };
    for (const auto& c : cases) {
        SetUp();
        cut(c.s, c.d1, c.t, c.d2);
        EXPECT_EQ(text(), c.after) << c.name;
        EXPECT_EQ(lineList(&mline, 1, 1), (BreakList{-0.5, 0})) << c.name;
    }
}

// Far from the origin points are equal at a larger distance.
TEST_F(GapCutting, FarOutSmallDistancesCountAsNone) {
    build({{1e7, 0, 0}, {1e7 + 10, 0, 0}, {1e7 + 20, 0, 0}});
    cut(0, 5, 0, 5.0005, 1e7);
    EXPECT_EQ(text(), "0, 0");
    // Both ends equal the vertex, but not each other: each moves to the other's segment.
    cut(0, 10.0009, 1, -0.0009, 1e7);
    EXPECT_EQ(text(), "0, 0");
    cut(0, 5, 0, 5.002, 1e7);
    EXPECT_EQ(text(), "0 5 5.002, 0");
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

TEST_F(GapCutting, StopsAtWhatDoesntExist) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double start[3] = {3, 0.5, 0};
    const double end[3] = {5, 0.5, 0};
    const double nowhere[3] = {nan, nan, nan};
    run.Cut_Mongline(&seg, 2, start, 0, end, 0);
    run.Cut_Mongline(&seg, -1, start, 0, end, 0);
    run.Cut_Mongline(&seg, 0, start, 0, end, 5);
    run.Cut_Mongline(&seg, 0, start, 0, nowhere, 0);
    EXPECT_EQ(text(), "0, 0, 0, 0");
    seg.m_mline = nullptr;
    run.Cut_Mongline(&seg, 0, start, 0, end, 0);
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

} // namespace
