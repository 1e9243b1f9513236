#include "ToolWorld.h"

namespace {

// The first runs along x, element 0 at y = 1 and element 1 at y = -1. The second runs up at x = 5,
// element 0 at x = 4 and element 1 at x = 6.
class CrossTools : public orvex::testing::ToolWorld {
protected:
    KdDbMline* along(const std::vector<double>& offsets = {1, -1}) {
        return add({{0, 0, 0}, {10, 0, 0}}, offsets);
    }
    const std::string root2 = number(std::sqrt(2.0)); // offset 1 at a square corner

    KdDbMline* up(const std::vector<double>& offsets = {1, -1}) {
        return add({{5, -5, 0}, {5, 5, 0}}, offsets);
    }
};

TEST_F(CrossTools, OpenTheLinesOfTheirKind) {
    const struct {
        const char* name;
        ToolMember tool;
        std::vector<double> firstOffsets, secondOffsets;
        std::string first, second;
    } cases[] = {
        {"closed",
         &CMlineEdit::cmd_mledit_ClosedCross,
         {1, -1},
         {1, -1},
         "1 0 4 6 | -1 0 4 6",
         "1 0 | -1 0"},
        {"open",
         &CMlineEdit::cmd_mledit_OpenCross,
         {1, 0, -2},
         {2, 0, -1},
         "1 0 3 6 | 0 0 3 6 | -2 0 3 6",
         "2 0 3 6 | 0 0 | -1 0 3 6"},
        {"merged, middle lines run through",
         &CMlineEdit::cmd_mledit_MergedCross,
         {1, 0, -1},
         {1, 0, -1},
         "1 0 4 6 | 0 0 | -1 0 4 6",
         "1 0 4 6 | 0 0 | -1 0 4 6"},
        {"merged, rings",
         &CMlineEdit::cmd_mledit_MergedCross,
         {2, 1, -1, -2},
         {2, 1, -1, -2},
         "2 0 3 7 | 1 0 4 6 | -1 0 4 6 | -2 0 3 7",
         "2 0 3 7 | 1 0 4 6 | -1 0 4 6 | -2 0 3 7"},
        {"merged, two by three",
         &CMlineEdit::cmd_mledit_MergedCross,
         {1, -1},
         {1, 0, -1},
         "1 0 4 6 | -1 0 4 6",
         "1 0 4 6 | 0 0 4 6 | -1 0 4 6"},
        {"closed by one line",
         &CMlineEdit::cmd_mledit_ClosedCross,
         {1, -1},
         {0},
         "1 0 | -1 0",
         "0 0"},
        {"open, one line",
         &CMlineEdit::cmd_mledit_OpenCross,
         {0},
         {1, -1},
         "0 0 4 6",
         "1 0 | -1 0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        KdDbMline* const first = along(c.firstOffsets);
        KdDbMline* const second = up(c.secondOffsets);
        const auto before = second->content();
        const auto onFirst = pick(first, 1, c.firstOffsets[0]);
        const auto onSecond = pick(second, 5 - c.secondOffsets[0], 3);
        play(c.tool, {onFirst, onSecond, cancel()});
        EXPECT_EQ(lists(first, 0), c.first);
        EXPECT_EQ(lists(second, 0), c.second);
        EXPECT_TRUE(isUndoOffered());
        first->erase();
        second->erase();
    }
}

TEST_F(CrossTools, FindTheCrossingAwayFromThePicks) {
    // The first goes round a U, along y = 20 at last. The second crosses its beginning at x = 4 and
    // its end at x = 6. Neither picked segment crosses the other; of all pairs, produced ones too,
    // the sum of distances from (10, 4) and (6, 22) is least at (6, 20).
    KdDbMline* const first = add({{0, 0, 0}, {10, 0, 0}, {10, 20, 0}, {0, 20, 0}}, {1, -1});
    KdDbMline* const second =
        add({{4, -5, 0}, {4, 5, 0}, {7, 10, 0}, {6, 15, 0}, {6, 25, 0}}, {1, -1});
    play(&CMlineEdit::cmd_mledit_ClosedCross, {pick(first, 9, 4), pick(second, 5, 22), cancel()});
    EXPECT_EQ(lists(first, 0), "1 0 | -1 0");
    EXPECT_EQ(lists(first, 2), root2 + " 0 2 4 | -" + root2 + " 0 4 6");
}

TEST_F(CrossTools, StraightContinuationsOfThePickedSegmentsBeatNearerCrossings) {
    // Picked: segment 1 of the first and segment 0 of the second. They cross nowhere; segment 0 of
    // the first continues segment 1 straight and crosses segment 0 of the second truly, at x = 5.
    // The crossing with segment 2 of the second, at x = 18, lies nearer.
    KdDbMline* const first = add({{0, 0, 0}, {10, 0, 0}, {20, 0, 0}}, {1, -1});
    KdDbMline* const second = add({{5, -9, 0}, {5, 9, 0}, {18, 9, 0}, {18, -9, 0}}, {1, -1});
    play(&CMlineEdit::cmd_mledit_ClosedCross, {pick(first, 17, 1), pick(second, 4, 5), cancel()});
    EXPECT_EQ(lists(first, 0), "1 0 4 6 | -1 0 4 6");
    EXPECT_EQ(lists(first, 1), "1 0 | -1 0");
}

// The inner element ends at (9, 1), short of the second's far line at x = 10.5.
TEST_F(CrossTools, LeaveAnElementThatFallsShort) {
    KdDbMline* const first = add({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}}, {1, -1});
    const std::string inner = lists(first, 0).substr(0, lists(first, 0).find(" |"));
    KdDbMline* const second = add({{9.5, -5, 0}, {9.5, 5, 0}}, {1, -1});
    play(&CMlineEdit::cmd_mledit_ClosedCross, {pick(first, 2, 1), pick(second, 8.5, -3), cancel()});
    EXPECT_EQ(lists(first, 0), inner + " | -1 0 8.5 10.5");
}

TEST_F(CrossTools, CutTheClosingSegmentOfTheSecondAlone) {
    // Counter-clockwise, so element 0 runs inside, through (1, 9) and (1, 1).
    KdDbMline* const square = add({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, {1, -1}, true);
    KdDbMline* const bar = add({{-5, 5, 0}, {5, 5, 0}}, {1, -1});
    play(&CMlineEdit::cmd_mledit_OpenCross, {pick(bar, -4, 6), pick(square, 1, 3), cancel()});
    EXPECT_EQ(lists(square, 3), root2 + " 0 3 5 | -" + root2 + " 0 5 7");
    EXPECT_EQ(lists(bar, 0), "1 0 4 6 | -1 0 4 6");

    play(&CMlineEdit::cmd_mledit_OpenCross, {pick(square, 1, 3), pick(bar, -4, 6), cancel()});
    // As the first its closing segment isn't tried; the bar, produced, cuts the other side.
    EXPECT_EQ(lists(square, 1), root2 + " 0 3 5 | -" + root2 + " 0 5 7");
    EXPECT_EQ(lists(square, 3), root2 + " 0 3 5 | -" + root2 + " 0 5 7");
    EXPECT_EQ(lists(bar, 0), "1 0 4 6 | -1 0 4 6");
}

// One multiline that runs over itself: segment 3 comes down at x = 5, element 0 at x = 6.
TEST_F(CrossTools, CutOneMultilinePickedTwice) {
    KdDbMline* const loop =
        add({{0, 0, 0}, {10, 0, 0}, {10, 8, 0}, {5, 8, 0}, {5, -8, 0}}, {1, -1});
    const auto before = loop->content();
    play(&CMlineEdit::cmd_mledit_OpenCross,
         {pick(loop, 2, 1), pick(loop, 6, -6), keyword(L"Undo"), cancel()});
    EXPECT_TRUE(loop->content()->equals(*before));

    play(&CMlineEdit::cmd_mledit_OpenCross, {pick(loop, 2, 1), pick(loop, 6, -6), cancel()});
    EXPECT_EQ(lists(loop, 0), "1 0 4 6 | -1 0 4 6");
    // From (6, 7) and (4, 9), the mitred corners, to y = 1 and -1.
    EXPECT_EQ(lists(loop, 3), root2 + " 0 6 8 | -" + root2 + " 0 8 10");
}

TEST_F(CrossTools, TellACycleWithoutAPairFromOneWithoutCuts) {
    KdDbMline* const first = along();
    KdDbMline* const second = up();
    KdDbMline* const parallel = add({{0, 9, 0}, {10, 9, 0}}, {1, -1});
    KdDbMline* const above = add({{3, -5, 2}, {3, 5, 2}}, {1, -1});
    const auto tool = &CMlineEdit::cmd_mledit_MergedCross;
    const auto onFirst = pick(first, 1, 1);

    // Two picks on one segment, or nothing that crosses: the cycle before can't be taken back.
    for (const auto& fails : {pick(first, 8, 1), pick(parallel, 1, 10)}) {
        play(tool, {onFirst, pick(second, 4, 3), onFirst, fails, cancel()});
        EXPECT_FALSE(isUndoOffered());
        EXPECT_TRUE(user.lines.empty());
        EXPECT_EQ(display.events, std::vector<std::string>{"refresh"});
    }
    // In plan they cross, in space they miss each other.
    const auto before = first->content();
    play(tool, {onFirst, pick(above, 2, 3), cancel()});
    EXPECT_TRUE(isUndoOffered());
    EXPECT_TRUE(first->content()->equals(*before));
    EXPECT_EQ(display.events, std::vector<std::string>{"refresh"});
}

} // namespace
