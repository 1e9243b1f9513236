#include "ToolWorld.h"

namespace {

// Straight segments of 10 along x, elements at y = 1 and y = -1. The aperture is 0.424.
class WeldTool : public orvex::testing::ToolWorld {
protected:
    KdDbMline* straight(int segments) {
        std::vector<KdGePoint3d> points;
        for (int i = 0; i <= segments; ++i) {
            points.push_back({10.0 * i, 0, 0});
        }
        return add(points, {1, -1});
    }
    void weld(KdDbMline* mline, double from, double to) {
        play(&CMlineEdit::cmd_mledit_WeldAll, {pick(mline, from, 1), pick(mline, to, 1), cancel()});
    }
};

TEST_F(WeldTool, TakesEveryBreakBetweenThePicks) {
    const struct {
        double from, to;
        std::string lists;
    } cases[] = {
        {3, 5, "1 0 | -1 0"},
        {5, 3, "1 0 | -1 0"},
        {1, 6, "1 0 | -1 0"},
        {4, 4.5, "1 0 3 5 | -1 0 3 5"}, // picks in the gap match like any others
        {3.3, 4.8, "1 0 | -1 0"},       // near the gap's ends
        {4, 6, "1 0 3 | -1 0 3"},
        {-0.3, 10.3, "1 0 | -1 0"}, // pulled back to the segment's
                                    // ends
        {6, 6, "1 0 3 5 | -1 0 3 5"},
    };
    for (const auto& c : cases) {
        KdDbMline* const mline = straight(1);
        setBreaks(mline, 0, {{0, 3, 5}, {0, 3, 5}});
        weld(mline, c.from, c.to);
        EXPECT_EQ(lists(mline, 0), c.lists) << c.from << " to " << c.to;
        EXPECT_TRUE(isUndoOffered());
        mline->erase();
    }
}

TEST_F(WeldTool, RunsOverVertices) {
    KdDbMline* const mline = straight(3);
    for (int v = 0; v < 3; ++v) {
        setBreaks(mline, v, {{0, 3, 5}, {2, 6}});
    }
    const auto before = mline->content();
    const auto from = pick(mline, 3, 1);
    const auto to = pick(mline, 24, 1);
    play(&CMlineEdit::cmd_mledit_WeldAll, {to, from, keyword(L"UNDO"), cancel()});
    EXPECT_TRUE(mline->content()->equals(*before));
    play(&CMlineEdit::cmd_mledit_WeldAll, {to, from, cancel()});
    EXPECT_EQ(lists(mline, 0), "1 0 | -1 2");
    EXPECT_EQ(lists(mline, 1), "1 0 | -1 0");
    EXPECT_EQ(lists(mline, 2), "1 5 | -1 0 6");
}

// A lower pick on a vertex goes over to the segment behind in the lower half of the chain alone;
// where it stays, it takes the break near the end of its segment along. The element mapped next
// still finds the new segment, with the distance in the old one: its ends change places, so what
// lies outside them goes.
TEST_F(WeldTool, AVertexBelongsToTheSegmentBehindInTheLowerHalf) {
    const struct {
        int vertex;
        std::string before, behind;
    } cases[] = {{1, "1 0 9.8 | -1", "1 5 | -1 0 3"}, {3, "1 0 | -1 0", "1 5 | -1 5"}};
    for (const auto& c : cases) {
        KdDbMline* const mline = straight(5); // six vertices, half of them is 3
        setBreaks(mline, c.vertex - 1, {{0, 9.8}, {0, 9.8}});
        setBreaks(mline, c.vertex, {{0, 3, 5}, {0, 3, 5}});
        weld(mline, 10.0 * c.vertex, 10.0 * c.vertex + 4);
        EXPECT_EQ(lists(mline, c.vertex - 1), c.before);
        EXPECT_EQ(lists(mline, c.vertex), c.behind);
        mline->erase();
    }
}

TEST_F(WeldTool, AnythingElseLeavesAllAsItIs) {
    KdDbMline* const mline = straight(1);
    KdDbMline* const other = add({{0, 9, 0}, {10, 9, 0}}, {0});
    KdDbObject* const line = addLine();
    setBreaks(mline, 0, {{0, 3, 5}, {0, 3, 5}});
    const auto before = mline->content();
    play(&CMlineEdit::cmd_mledit_WeldAll,
         {pick(mline, 3, 1), pick(other, 5, 9), pick(line, 5, 9), cancel()});
    EXPECT_EQ(user.prompts, (std::vector<std::wstring>{L"#4011", L"#4012", L"#4012", L"#4012"}));
    EXPECT_TRUE(isOpen(mline)) << "the exit closes nothing";
    EXPECT_TRUE(mline->content()->equals(*before));

    // Something that is no multiline gets through both prompts; UNDO is offered and has nothing.
    play(&CMlineEdit::cmd_mledit_WeldAll, {pick(line, 3, 1), pick(line, 5, 1), keyword(L"UNDO")});
    EXPECT_EQ(user.prompts[2], L"#4010 [UNDO]");
    EXPECT_TRUE(mline->content()->equals(*before));
}

} // namespace
