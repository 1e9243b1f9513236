// Cut and weld by picks; the lists themselves are tried one by one elsewhere.

#include "ToolWorld.h"

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
        CMlineEdit().runTool(editTool(tool), resources);
    }
};

// A right angle to the left: element 0 inside through (9, 1), element 1 outside through (11, -1).
TEST_F(BreakTools, CutOpensFromPickToPick) {
    const struct {
        const char* name;
        Tool tool;
        std::string picks, first, second; // lists of vertices 0 and 1, their offsets left out
    } cases[] = {
        {"on the element of the first pick", cutSingle, "3,1 6,-1", "0 3 6 | 0", "0 | 0"},
        {"over a vertex", cutSingle, "6,-1 11,4", "0 | 0 6", "0 | 5"},
        {"backwards", cutSingle, "11,4 6,-1", "0 | 0 6", "0 | 5"},
        // Across from (11, 0) the inner element hasn't begun: the gap ends at its vertex (9, 1),
        // with the segment before.
        {"all, square across", cutAll, "6,-1 11,0", "0 6 9 | 0 6", "0 | 1"},
        {"again, over the first", cutSingle, "2,-1 5,-1 1,-1 7,-1", "0 | 0 1 7", "0 | 0"},
        {"at one place", cutAll, "3,-1 3,-1", "0 | 0", "0 | 0"},
        {"a miss goes on with the old pick", cutSingle, "3,-1 7,-1 5,-1 9,-1", "0 | 0 3 9",
         "0 | 0"},
    };
    for (const auto& c : cases) {
        KdDbMline* const corner = add("0,0 10,0 10,10 : 1 -1");
        playAll(c.tool, corner, c.picks);
        EXPECT_EQ(breaksAt(corner, 0), c.first) << c.name;
        EXPECT_EQ(breaksAt(corner, 1), c.second) << c.name;
        EXPECT_TRUE(isUndoOffered());
        corner->erase();
    }
}

TEST_F(BreakTools, ASecondPickElsewhereRepeatsThePrompt) {
    KdDbMline* const mline = add("0,0 10,0 : 1 -1");
    KdDbMline* const other = add("0,5 10,5 : 0");
    play(cutSingle, {pickAt(mline, "3,-1"), pickAt(other, "3,5"), miss(), pickAt(mline, "5,-1")});
    EXPECT_EQ(lists(mline, 0), "1 0 | -1 0 3 5");
    EXPECT_EQ(user.prompts,
              (std::vector<std::wstring>{L"#4011", L"#4012", L"#4012", L"#4012", L"#4010 [UNDO]"}));
    EXPECT_TRUE(user.lines.empty());
}

// Segment 1 of the longer multiline doesn't exist on the shorter one.
TEST_F(BreakTools, AnOldPickBeyondTheNewMultilineEndsTheCycle) {
    KdDbMline* const corner = add("0,0 10,0 10,10 : 1 -1");
    KdDbMline* const shorter = add("0,50 10,50 : 1 -1");
    play(cutSingle, {pickAt(corner, "11,3"), pickAt(corner, "11,5"), pickAt(shorter, "5,55"),
                     pickAt(shorter, "5,56"), cancel()});
    EXPECT_EQ(lists(shorter, 0), "1 0 | -1 0");
    EXPECT_FALSE(isUndoOffered());
    EXPECT_FALSE(isOpen(shorter));
}

// The aperture is 0.424.
TEST_F(BreakTools, WeldTakesEveryBreakBetweenThePicks) {
    const struct {
        std::string picks, lists;
    } cases[] = {
        {"5,1 3,1", "0 | 0"},           {"3.3,1 4.8,1", "0 | 0"}, // near the gap's ends
        {"4,1 4.5,1", "0 3 5 | 0 3 5"}, // picks in the gap match like any others
        {"4,1 6,1", "0 3 | 0 3"},       // the stretch behind is given up
        {"-0.3,1 10.3,1", "0 | 0"},     // pulled back to the segment's ends
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

// A lower pick on a vertex goes over to the segment behind in the lower half of the chain alone;
// where it stays, it takes the break near the end of its segment along. The element mapped next
// still finds the new segment, with the distance in the old one: its ends change places, so what
// lies outside them goes.
TEST_F(BreakTools, WeldGivesAVertexToTheSegmentBehindInTheLowerHalf) {
    const struct {
        int vertex;
        std::string picks, before, behind;
    } cases[] = {{1, "10,1 14,1", "1 0 9.8 | -1", "1 5 | -1 0 3"},
                 {3, "30,1 34,1", "1 0 | -1 0", "1 5 | -1 5"}};
    for (const auto& c : cases) {
        KdDbMline* const mline = add("0,0 10,0 20,0 30,0 40,0 50,0 : 1 -1"); // half of six is 3
        setBreaks(mline, c.vertex - 1, {{0, 9.8}, {0, 9.8}});
        setBreaks(mline, c.vertex, {{0, 3, 5}, {0, 3, 5}});
        playAll(weldAll, mline, c.picks);
        EXPECT_EQ(lists(mline, c.vertex - 1), c.before);
        EXPECT_EQ(lists(mline, c.vertex), c.behind);
        mline->erase();
    }
}

} // namespace
