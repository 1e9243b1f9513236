// Cut and weld by picks.

#include "ToolWorld.h"

using namespace mledit;

namespace {

class BreakTools : public orvex::testing::ToolWorld {
protected:
    // Plays cycles of two picks, "3,1 6,-1", and ends.
    void playAll(Tool tool, KdDbMline* mline, const std::string& places) {
        std::istringstream in(places);
        std::string place;
        answer({});
        while (in >> place) {
            user.answers.push_back(pickAt(mline, place));
        }
        CMlineEdit run;
        runTool(run, editTool(tool), resources);
    }
};

TEST_F(BreakTools, cutOpensFromPickToPick) {
    // Element 0 inside through (9, 1), element 1 outside through (11, -1).
    const std::string corner = "0,0 10,0 10,10 : 1 -1";
    const std::string straight = "0,0 10,0 20,0 30,0 40,0 : 1 -1";
    const struct {
        const char* name;
        Tool tool;
        std::string chain, picks;
        std::string breaks; // of the segments in turn
    } cases[] = {
        {"on the element of the first pick", cutSingle, corner, "3,1 6,-1", "0 3 6 | 0, 0 | 0"},
        {"over a vertex", cutSingle, corner, "6,-1 11,4", "0 | 0 6, 0 | 5"},
        {"backwards", cutSingle, corner, "11,4 6,-1", "0 | 0 6, 0 | 5"},
        // Across from (11, 0) the inner element hasn't begun: the gap ends at its vertex (9, 1),
        // with the segment before.
        {"all, square across", cutAll, corner, "6,-1 11,0", "0 6 9 | 0 6, 0 | 1"},
        {"again, over the first", cutSingle, corner, "2,-1 5,-1 1,-1 7,-1", "0 | 0 1 7, 0 | 0"},
        {"at one place", cutAll, corner, "3,-1 3,-1", "0 | 0, 0 | 0"},
        {"a miss goes on with the old pick", cutSingle, corner, "3,-1 7,-1 5,-1 9,-1",
         "0 | 0 3 9, 0 | 0"},
        {"over several", cutSingle, straight, "7,1 33,1", "0 7 | 0,  | 0,  | 0, 3 | 0"},
        {"from vertex to vertex", cutSingle, straight, "30,-1 10,-1", "0 | 0, 0 |, 0 |, 0 | 0"},
        {"from the chain's start", cutSingle, straight, "0,-1 4,-1", "0 | 4, 0 | 0, 0 | 0, 0 | 0"},
        {"never across the closing vertex", cutSingle, "0,0 10,0 10,10 0,10 : 1 -1 closed",
         "1,4 4,1", "0 3 | 0,  | 0,  | 0, 5 | 0"},
        // Far from the origin points are equal at a larger distance.
        {"far out", cutSingle, "1e7,0 10000010,0 : 1 -1", "10000005,1 10000005.0005,1", "0 | 0"},
    };
    for (const auto& c : cases) {
        KdDbMline* const mline = add(c.chain);
        playAll(c.tool, mline, c.picks);
        const int segments = mline->numVertices() - (mline->closedMline() ? 0 : 1);
        std::string breaks = breaksAt(mline, 0);
        for (int v = 1; v < segments; ++v) {
            breaks += ", " + breaksAt(mline, v);
        }
        EXPECT_EQ(breaks, c.breaks) << c.name;
        EXPECT_TRUE(isUndoOffered());
        mline->erase();
    }
}

TEST_F(BreakTools, cutStopsAtWhatDoesntExist) {
    const double nan = std::nan("");
    const double start[3] = {3, 1, 0};
    const double end[3] = {5, 1, 0};
    const double nowhere[3] = {nan, nan, nan};
    CMlineEdit run;
    CMlineSegment seg;
    run.Cut_Mongline(&seg, 0, start, 0, end, 0);
    seg.m_mline = add("0,0 10,0 : 1 -1");
    run.Cut_Mongline(&seg, 2, start, 0, end, 0);
    run.Cut_Mongline(&seg, -1, start, 0, end, 0);
    run.Cut_Mongline(&seg, 0, start, 0, end, 2);
    run.Cut_Mongline(&seg, 0, start, 2, end, 0);
    run.Cut_Mongline(&seg, 0, start, 2, end, 2);
    run.Cut_Mongline(&seg, 0, start, 0, nowhere, 0);
    EXPECT_EQ(lists(seg.m_mline, 0), "1 0 | -1 0");
    // Where there is no vertex, the origin would be read.
    KdDbMline* const bar = add("5,-5 5,5 : 0");
    KdDbMline* const beside = add("8,0 20,0 : 0");
    double crossing[3];
    for (const int segment : {-1, 1}) {
        EXPECT_FALSE(run.getXPoint(beside, segment, bar, 0, crossing)) << segment;
        EXPECT_FALSE(run.getXPoint(bar, 0, beside, segment, crossing)) << segment;
    }
}

// Segment 1 of the longer multiline doesn't exist on the shorter one.
TEST_F(BreakTools, anOldPickBeyondTheNewMultilineEndsTheCycle) {
    KdDbMline* const corner = add("0,0 10,0 10,10 : 1 -1");
    KdDbMline* const shorter = add("0,50 10,50 : 1 -1");
    play(cutSingle, {pickAt(corner, "11,3"), pickAt(corner, "11,5"), pickAt(shorter, "5,55"),
                     pickAt(shorter, "5,56"), cancel()});
    EXPECT_EQ(lists(shorter, 0), "1 0 | -1 0");
    EXPECT_FALSE(isUndoOffered());
    EXPECT_FALSE(isOpen(shorter));
}

// The aperture is 0.424.
TEST_F(BreakTools, weldTakesEveryBreakBetweenThePicks) {
    const struct {
        std::string picks, lists;
    } cases[] = {
        {"5,1 3,1", "0 | 0"},           {"3.3,1 4.8,1", "0 | 0"}, // near the gap's ends
        {"4,1 4.5,1", "0 3 5 | 0 3 5"}, // picks in the gap match like any others
        {"4,1 6,1", "0 3 | 0 3"},       // the interval after is given up
        {"-0.3,1 10.3,1", "0 | 0"},     // clamped to the segment's ends
    };
    for (const auto& c : cases) {
        KdDbMline* const mline = add("0,0 10,0 : 1 -1");
        setBreaks(mline, 0, {{0, 3, 5}, {0, 3, 5}});
        playAll(weldAll, mline, c.picks);
        EXPECT_EQ(breaksAt(mline, 0), c.lists) << c.picks;
        mline->erase();
    }
    KdDbMline* const mline = add("0,0 10,0 20,0 30,0 : 1 -1");
    for (int v = 0; v < 3; ++v) {
        setBreaks(mline, v, {{0, 3, 5}, {2, 6}});
    }
    playAll(weldAll, mline, "24,1 3,1");
    EXPECT_EQ(drawn(mline), "0,0 (1 0 | -1 2) 10,0 (1 0 | -1 0) 20,0 (1 5 | -1 0 6) 30,0");
}

} // namespace
