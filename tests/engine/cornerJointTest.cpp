#include "ToolWorld.h"

namespace {

// The first runs along x, element 0 at y = 1 and element 1 at y = -1. The second runs up at x = 6,
// element 0 at x = 5 and element 1 at x = 7: they meet at (6, 0).
class CornerJoint : public orvex::testing::ToolWorld {
protected:
    CornerJoint() { setStyle({1, -1}); }
    ToolMember tool = &CMlineEdit::cmd_mledit_CornerJoint;
};

TEST_F(CornerJoint, KeepsThePickedSides) {
    const struct {
        const char* name;
        std::vector<KdGePoint3d> first, second;
        double firstAt, secondAt; // picks: x on the first, y on the second
        std::string firstChain, firstLists;
        int firstFlags;
        std::string secondChain, secondLists;
        int secondFlags;
    } cases[] = {
        {"both starts",
         {{0, 0, 0}, {10, 0, 0}},
         {{6, -5, 0}, {6, 5, 0}},
         2,
         -3,
         "0,0 6,0",
         "1 0 7 | -1 0 5",
         1 + 8,
         "6,-5 6,0",
         "1 0 4 | -1 0 6",
         1 + 8},
        {"start and end",
         {{0, 0, 0}, {10, 0, 0}},
         {{6, -5, 0}, {6, 5, 0}},
         2,
         3,
         "0,0 6,0",
         "1 0 5 | -1 0 7",
         1 + 8,
         "6,0 6,5",
         "1 1 | -1 -1",
         1 + 4},
        {"both ends",
         {{0, 0, 0}, {10, 0, 0}},
         {{6, -5, 0}, {6, 5, 0}},
         9,
         3,
         "6,0 10,0",
         "1 1 | -1 -1",
         1 + 4,
         "6,0 6,5",
         "1 -1 | -1 1",
         1 + 4},
        {"drawn out",
         {{0, 0, 0}, {4, 0, 0}},
         {{6, -5, 0}, {6, -2, 0}},
         2,
         -3,
         "0,0 6,0",
         "1 0 7 | -1 0 5",
         1 + 8,
         "6,-5 6,0",
         "1 0 4 | -1 0 6",
         1 + 8},
        {"vertices beyond go",
         {{-4, 0, 0}, {0, 0, 0}, {10, 0, 0}},
         {{6, -5, 0}, {6, 5, 0}, {6, 9, 0}, {9, 9, 0}},
         9,
         -3,
         "6,0 10,0",
         "1 -1 | -1 1",
         1 + 4,
         "6,-5 6,0",
         "1 0 6 | -1 0 4",
         1 + 8},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        KdDbMline* const first = add(c.first, {1, -1});
        KdDbMline* const second = add(c.second, {1, -1});
        const auto firstBefore = first->content();
        const auto secondBefore = second->content();
        const auto onFirst = pick(first, c.firstAt, 1);
        const auto onSecond = pick(second, 5, c.secondAt);
        play(tool, {onFirst, onSecond, cancel()});
        EXPECT_EQ(chain(first), c.firstChain);
        EXPECT_EQ(lists(first, 0), c.firstLists);
        EXPECT_EQ(flags(first), c.firstFlags);
        EXPECT_EQ(chain(second), c.secondChain);
        EXPECT_EQ(lists(second, 0), c.secondLists);
        EXPECT_EQ(flags(second), c.secondFlags);

        first->setContent(firstBefore);
        second->setContent(secondBefore);
        play(tool, {onFirst, onSecond, keyword(L"UNDO"), cancel()});
        EXPECT_TRUE(first->content()->equals(*firstBefore));
        EXPECT_TRUE(second->content()->equals(*secondBefore));
        first->erase();
        second->erase();
    }
}

// Three lines at x = 5, 6 and 7 of the second: of the first's two, element 0 joins the far one.
TEST_F(CornerJoint, PairsDifferentNumbersOfLines) {
    setStyle({1, 0, -1});
    KdDbMline* const first = add({{0, 0, 0}, {10, 0, 0}}, {1, 0, -1});
    KdDbMline* const second = add({{6, -5, 0}, {6, 5, 0}}, {1, -1});
    play(tool, {pick(first, 2, 1), pick(second, 5, -3), cancel()});
    EXPECT_EQ(lists(first, 0), "1 0 7 | 0 0 5 | -1 0 5");
    EXPECT_EQ(lists(second, 0), "1 0 4 | -1 0 6");
}

TEST_F(CornerJoint, CutsTheLoopOutOfOneMultiline) {
    // First and last segment cross at (5, 0) behind the middle of both.
    const std::vector<KdGePoint3d> loop = {{0, 0, 0}, {8, 0, 0}, {8, 5, 0}, {5, 5, 0}, {5, -9, 0}};
    for (const bool inOrder : {true, false}) {
        KdDbMline* const mline = add(loop, {1, -1});
        const auto before = mline->content();
        const auto early = pick(mline, 6, 1); // where on them doesn't count
        const auto late = pick(mline, 6, -6);
        play(tool, {inOrder ? early : late, inOrder ? late : early, cancel()});
        EXPECT_EQ(chain(mline), "0,0 5,0 5,-9");
        EXPECT_EQ(flags(mline), 1);
        EXPECT_TRUE(isUndoOffered());
        mline->setContent(before);
        play(tool, {early, late, keyword(L"UNDO"), cancel()});
        EXPECT_TRUE(mline->content()->equals(*before));
        mline->erase();
    }
}

TEST_F(CornerJoint, ClosesTheLoopOfOneMultiline) {
    // They cross at (2, 0), before the middle of the first and behind that of the last.
    KdDbMline* const mline =
        add({{0, 0, 0}, {10, 0, 0}, {10, 5, 0}, {2, 5, 0}, {2, -1, 0}}, {1, -1});
    play(tool, {pick(mline, 6, 1), pick(mline, 3, 2), cancel()});
    EXPECT_EQ(chain(mline), "2,0 10,0 10,5 2,5 2,0");
    EXPECT_EQ(flags(mline), 1 + 4 + 8);
    // Element 0 inside meets itself at (3, 1), element 1 outside at (1, -1).
    EXPECT_EQ(lists(mline, 0), "1 1 | -1 -1");
    const std::string corner = number(std::sqrt(2.0));
    EXPECT_EQ(lists(mline, 3), corner + " 0 3 | -" + corner + " 0 7");
}

TEST_F(CornerJoint, EndsWithoutAJoint) {
    KdDbMline* const first = add({{0, 0, 0}, {10, 0, 0}}, {1, -1});
    KdDbMline* const parallel = add({{0, 9, 0}, {10, 9, 0}}, {1, -1});
    KdDbMline* const against = add({{10, 20, 0}, {0, 20, 0}}, {1, -1});
    KdDbMline* const above = add({{6, -5, 3}, {6, 5, 3}}, {1, -1});
    KdDbMline* const chain3 = add({{0, 40, 0}, {9, 40, 0}, {9, 49, 0}}, {1, -1});
    KdDbMline* const square = add({{20, 20, 0}, {29, 20, 0}, {29, 29, 0}}, {1, -1}, true);
    const auto onFirst = pick(first, 2, 1);
    // Text 4007 where there is no crossing; no word for neighbouring segments.
    const struct {
        orvex::PromptAnswer first, second;
        std::vector<std::wstring> lines;
    } cases[] = {
        {onFirst, pick(parallel, 2, 10), {L"#4007"}},
        {onFirst, pick(against, 2, 19), {L"#4007"}},
        {onFirst, pick(above, 5, 3), {L"#4007"}},
        {onFirst, pick(square, 25, 21), {L"#4006"}},
        {pick(chain3, 2, 41), pick(chain3, 8, 45), {}},
        {onFirst, pick(first, 8, 1), {L"#4007"}}, // its first and last segment are one
    };
    for (const auto& c : cases) {
        play(tool, {c.first, c.second, cancel()});
        EXPECT_EQ(user.lines, c.lines);
        EXPECT_FALSE(isUndoOffered());
        EXPECT_TRUE(display.events.empty());
    }
    EXPECT_EQ(lists(first, 0) + lists(chain3, 2), "1 0 | -1 01 0 | -1 0");
}

// The refused pick leaves the record on another multiline, while the copies are of the last cycle:
// UNDO writes them to that one. The host's own undo takes the whole command back.
TEST_F(CornerJoint, UndoAfterARefusedSecondPickGoesToTheLastFirstPick) {
    KdDbMline* const first = add({{0, 0, 0}, {10, 0, 0}}, {1, -1});
    KdDbMline* const second = add({{6, -5, 0}, {6, 5, 0}}, {1, -1});
    KdDbMline* const third = add({{0, 30, 0}, {10, 30, 0}}, {1, -1});
    KdDbMline* const square = add({{20, 20, 0}, {29, 20, 0}, {29, 29, 0}}, {1, -1}, true);
    play(tool, {pick(first, 2, 1), pick(second, 5, -3), pick(third, 2, 31), pick(square, 25, 21),
                keyword(L"UNDO"), cancel()});
    EXPECT_EQ(chain(first), "0,0 6,0");
    EXPECT_EQ(chain(third), "0,0 10,0");
    EXPECT_EQ(chain(second), "6,-5 6,5");
}

} // namespace
