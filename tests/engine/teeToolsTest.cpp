#include "ToolWorld.h"

namespace {

// The stem runs along x, element 0 at y = 1 and element 1 at y = -1. The bar runs up at x = 6,
// element 0 at x = 5 and element 1 at x = 7: with it the stem meets at (6, 0).
class TeeTools : public orvex::testing::ToolWorld {
protected:
    TeeTools() { setStyle({1, -1}); }
    KdDbMline* addBar(const std::vector<double>& offsets = {1, -1}) {
        return add({{6, -5, 0}, {6, 5, 0}}, offsets);
    }
};

TEST_F(TeeTools, StopTheStemOnThePickedSide) {
    const struct {
        const char* name;
        ToolMember tool;
        std::vector<KdGePoint3d> stem;
        double pickAt;
        std::string chain, stemLists;
        int flags;
        std::string barLists;
    } cases[] = {
        {"before the bar",
         &CMlineEdit::cmd_mledit_ClosedTree,
         {{0, 0, 0}, {10, 0, 0}},
         2,
         "0,0 6,0",
         "1 0 5 | -1 0 5",
         1 + 8,
         "1 0 | -1 0"},
        {"behind the bar",
         &CMlineEdit::cmd_mledit_ClosedTree,
         {{0, 0, 0}, {10, 0, 0}},
         9,
         "6,0 10,0",
         "1 1 | -1 1",
         1 + 4,
         "1 0 | -1 0"},
        {"open, before",
         &CMlineEdit::cmd_mledit_OpenTree,
         {{0, 0, 0}, {10, 0, 0}},
         2,
         "0,0 6,0",
         "1 0 5 | -1 0 5",
         1 + 8,
         "1 0 4 6 | -1 0"},
        {"open, behind",
         &CMlineEdit::cmd_mledit_OpenTree,
         {{0, 0, 0}, {10, 0, 0}},
         9,
         "6,0 10,0",
         "1 1 | -1 1",
         1 + 4,
         "1 0 | -1 0 4 6"},
        {"carried forward to the bar",
         &CMlineEdit::cmd_mledit_OpenTree,
         {{0, 0, 0}, {4, 0, 0}},
         2,
         "0,0 6,0",
         "1 0 5 | -1 0 5",
         1 + 8,
         "1 0 4 6 | -1 0"},
        {"vertices beyond go",
         &CMlineEdit::cmd_mledit_ClosedTree,
         {{0, 0, 0}, {10, 0, 0}, {10, 5, 0}},
         2,
         "0,0 6,0",
         "1 0 5 | -1 0 5",
         1 + 8,
         "1 0 | -1 0"},
        {"vertices before go",
         &CMlineEdit::cmd_mledit_ClosedTree,
         {{-4, 0, 0}, {0, 0, 0}, {10, 0, 0}, {10, 5, 0}},
         8,
         "6,0 10,0 10,5",
         "1 1 | -1 1",
         1 + 4,
         "1 0 | -1 0"},
        // The picked place falls behind the start of the segment found: that is its end's side.
        {"picked a segment early",
         &CMlineEdit::cmd_mledit_ClosedTree,
         {{-4, 0, 0}, {0, 0, 0}, {10, 0, 0}},
         -2,
         "6,0 10,0",
         "1 1 | -1 1",
         1 + 4,
         "1 0 | -1 0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        KdDbMline* const stem = add(c.stem, {1, -1});
        KdDbMline* const bar = addBar();
        const auto stemBefore = stem->content();
        const auto barBefore = bar->content();
        const auto onStem = pick(stem, c.pickAt, 1);
        const auto onBar = pick(bar, 5, 4);
        play(c.tool, {onStem, onBar, keyword(L"UNDO"), cancel()});
        EXPECT_TRUE(stem->content()->equals(*stemBefore));
        EXPECT_TRUE(bar->content()->equals(*barBefore));
        EXPECT_FALSE(isUndoOffered());

        play(c.tool, {onStem, onBar, cancel()});
        EXPECT_EQ(chain(stem), c.chain);
        EXPECT_EQ(lists(stem, 0), c.stemLists);
        EXPECT_EQ(flags(stem), c.flags);
        EXPECT_EQ(lists(bar, 0), c.barLists);
        EXPECT_TRUE(isUndoOffered());
        stem->erase();
        bar->erase();
    }
}

TEST_F(TeeTools, MergedJoinsLineByLine) {
    const struct {
        std::vector<double> stemOffsets, barOffsets;
        std::string stemLists, barLists;
    } cases[] = {
        // The middle line ends on the bar's middle line.
        {{1, 0, -1}, {1, 0, -1}, "1 0 5 | 0 0 6 | -1 0 5", "1 0 4 6 | 0 0 | -1 0"},
        // The middle line runs through the near line to the far one.
        {{1, 0, -1}, {1, -1}, "1 0 5 | 0 0 7 | -1 0 5", "1 0 4 6 | -1 0"},
        {{2, 1, 0, -1, -2},
         {2, 1, 0, -1, -2},
         "2 0 4 | 1 0 5 | 0 0 6 | -1 0 5 | -2 0 4",
         "2 0 3 7 | 1 0 4 6 | 0 0 | -1 0 | -2 0"},
        {{1, -1}, {0}, "1 0 6 | -1 0 6", "0 0"}, // one line has nothing to open
        {{0}, {1, 0, -1}, "0 0 5", "1 0 | 0 0 | -1 0"},
    };
    for (const auto& c : cases) {
        setStyle(c.stemOffsets);
        KdDbMline* const stem = add({{0, 0, 0}, {10, 0, 0}}, c.stemOffsets);
        KdDbMline* const bar = addBar(c.barOffsets);
        play(&CMlineEdit::cmd_mledit_MergedTree,
             {pick(stem, 2, c.stemOffsets[0]), pick(bar, 6 - c.barOffsets[0], 4), cancel()});
        EXPECT_EQ(lists(stem, 0), c.stemLists);
        EXPECT_EQ(lists(bar, 0), c.barLists);
        stem->erase();
        bar->erase();
    }
}

// Along a bar at 45 degrees element by element the nearer line is the same, yet the places differ:
// element 0 at y = 1 meets x = 7 - sqrt 2 and element 1 at y = -1 meets x = 5 - sqrt 2.
TEST_F(TeeTools, ASlantingBarStopsEachLineAtItsOwnPlace) {
    KdDbMline* const stem = add({{0, 0, 0}, {10, 0, 0}}, {1, -1});
    KdDbMline* const bar = add({{2, -4, 0}, {10, 4, 0}}, {1, -1});
    play(&CMlineEdit::cmd_mledit_ClosedTree,
         {pick(stem, 2, 1), pick(bar, 6 - std::sqrt(2.0), 0), cancel()});
    EXPECT_EQ(chain(stem), "0,0 6,0");
    EXPECT_EQ(lists(stem, 0),
              "1 0 " + number(7 - std::sqrt(2.0)) + " | -1 0 " + number(5 - std::sqrt(2.0)));
}

// Segment 0 is the stem, segment 3 the bar: it comes down at x = 3, element 0 at x = 4. Only the
// part behind it holds the bar.
TEST_F(TeeTools, OneMultilineIsStemAndBar) {
    const std::vector<KdGePoint3d> loop = {
        {0, 0, 0}, {10, 0, 0}, {10, 8, 0}, {3, 8, 0}, {3, -8, 0}};
    for (const bool before : {false, true}) {
        KdDbMline* const mline = add(loop, {1, -1});
        const auto untouched = mline->content();
        play(&CMlineEdit::cmd_mledit_OpenTree,
             {pick(mline, before ? 1 : 7, 1), pick(mline, 4, -5), cancel()});
        if (before) {
            EXPECT_TRUE(mline->content()->equals(*untouched)) << "the part kept has no bar";
            EXPECT_FALSE(isUndoOffered());
            EXPECT_TRUE(user.lines.empty());
            EXPECT_TRUE(display.events.empty());
        } else {
            EXPECT_EQ(chain(mline), "3,0 10,0 10,8 3,8 3,-8");
            // Element 0 of the bar, at x = 4, is the nearer one to (9, 1).
            EXPECT_EQ(lists(mline, 0), "1 1 | -1 1");
            const std::string corner = number(std::sqrt(2.0));
            EXPECT_EQ(lists(mline, 3), corner + " 0 6 8 | -" + corner + " 0");
        }
        mline->erase();
    }
}

TEST_F(TeeTools, TellWhatDoesNotMeet) {
    KdDbMline* const stem = add({{0, 0, 0}, {10, 0, 0}}, {1, -1});
    KdDbMline* const shortBar = add({{6, 2, 0}, {6, 5, 0}}, {1, -1});
    KdDbMline* const square = add({{0, 20, 0}, {9, 20, 0}, {9, 29, 0}}, {1, -1}, true);
    play(&CMlineEdit::cmd_mledit_MergedTree, {pick(stem, 2, 1), pick(shortBar, 5, 4), cancel()});
    EXPECT_EQ(user.lines, std::vector<std::wstring>{L"#4007"});
    EXPECT_FALSE(isUndoOffered());
    EXPECT_TRUE(display.events.empty());
    play(&CMlineEdit::cmd_mledit_OpenTree, {pick(square, 5, 21), cancel()});
    EXPECT_EQ(user.lines, std::vector<std::wstring>{L"#4006"});
    EXPECT_EQ(user.prompts.back(), L"#4004");
}

} // namespace
