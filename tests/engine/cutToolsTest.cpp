#include "CMlineEdit.h"

#include "EngineWorld.h"
#include "ObjectContent.h"
#include "parameterLists.h"

namespace {

using Breaks = std::vector<double>;

// A right angle to the left: element 0 inside through (9, 1), element 1 outside through (11, -1).
// Element 0's segments are 9 long, element 1's 11.
class CutTools : public orvex::testing::EngineWorld {
protected:
    KdDbMline* corner = addMline({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}}, {1, -1});
    double offset = lineList(corner, 1, 0)[0]; // of element 0 at the inner vertex

    void expectBreaks(int vertex, int element, const Breaks& expected) const {
        Breaks actual = breaks(corner, vertex, element);
        ASSERT_GE(actual.size(), 1U);
        actual.erase(actual.begin());
        ASSERT_EQ(actual.size(), expected.size()) << "vertex " << vertex << ", element " << element;
        for (std::size_t i = 0; i < actual.size(); ++i) {
            EXPECT_NEAR(actual[i], expected[i], 1e-12)
                << "vertex " << vertex << ", element " << element << ", break " << i;
        }
    }
};

TEST_F(CutTools, SingleOpensTheElementOfTheFirstPick) {
    // The second pick is on the other element; what counts is the place square across.
    answer({pick(corner, 3, 1), pick(corner, 6, -1), cancel()});
    EXPECT_EQ(CMlineEdit().cmd_mledit_CutSingle(resources), -5002);
    expectBreaks(0, 0, {0, 3, 6});
    expectBreaks(0, 1, {0});
    expectBreaks(1, 0, {0});
    EXPECT_EQ(user.prompts, (std::vector<std::wstring>{L"#4011", L"#4012", L"#4010 [UNDO]"}));
    EXPECT_EQ(display.events, std::vector<std::string>{"refresh"});
    EXPECT_FALSE(isOpen(corner));
}

TEST_F(CutTools, SingleRunsOverAVertexInEitherDirection) {
    for (const bool backwards : {false, true}) {
        KdDbMline copy;
        copy.copyFrom(corner);
        const auto a = pick(corner, 6, -1);
        const auto b = pick(corner, 11, 4);
        answer({backwards ? b : a, backwards ? a : b});
        CMlineEdit().cmd_mledit_CutSingle(resources);
        expectBreaks(0, 1, {0, 6});
        expectBreaks(1, 1, {5}); // from (11, -1) to (11, 4)
        expectBreaks(0, 0, {0});
        corner->copyFrom(&copy);
    }
}

// Each element has its own pair of places, held to its own segments.
TEST_F(CutTools, AllOpensEveryElementSquareAcross) {
    answer({pick(corner, 6, -1), pick(corner, 11, 0), cancel()});
    CMlineEdit().cmd_mledit_CutAll(resources);
    expectBreaks(0, 1, {0, 6});
    expectBreaks(1, 1, {1});
    // Across from (11, 0) the inner element hasn't begun: its start (9, 1) is the vertex, and the
    // gap ends with the segment before.
    expectBreaks(0, 0, {0, 6, 9});
    expectBreaks(1, 0, {0});
}

TEST_F(CutTools, ASecondCutMergesWithTheFirst) {
    answer({pick(corner, 2, -1), pick(corner, 5, -1), //
            pick(corner, 1, -1), pick(corner, 7, -1), cancel()});
    CMlineEdit().cmd_mledit_CutSingle(resources);
    expectBreaks(0, 1, {0, 1, 7});
}

TEST_F(CutTools, TwoPicksAtOnePlaceCutNothingButCanBeTakenBack) {
    answer({pick(corner, 3, -1), pick(corner, 3, -1), cancel()});
    CMlineEdit().cmd_mledit_CutAll(resources);
    expectBreaks(0, 0, {0});
    expectBreaks(0, 1, {0});
    EXPECT_EQ(user.prompts.back(), L"#4010 [UNDO]");
}

TEST_F(CutTools, ASecondPickElsewhereRepeatsThePrompt) {
    KdDbMline* const other = addMline({{0, 5, 0}, {10, 5, 0}}, {0});
    answer({pick(corner, 3, -1), pick(other, 3, 5), miss(), pick(corner, 5, -1), cancel()});
    CMlineEdit().cmd_mledit_CutSingle(resources);
    expectBreaks(0, 1, {0, 3, 5});
    EXPECT_EQ(user.prompts,
              (std::vector<std::wstring>{L"#4011", L"#4012", L"#4012", L"#4012", L"#4010 [UNDO]"}));
    EXPECT_TRUE(user.lines.empty());
}

TEST_F(CutTools, UndoRestoresTheMultilineBitForBit) {
    storeAreaList(corner, 0, 1, {1, 2});
    corner->setSupressEndCaps(true);
    const auto before = corner->content();
    answer({pick(corner, 6, -1), pick(corner, 11, 4), keyword(L"UNDO"), cancel()});
    CMlineEdit().cmd_mledit_CutAll(resources);
    EXPECT_TRUE(corner->content()->equals(*before));
    EXPECT_EQ(user.prompts.back(), L"#4011");
    EXPECT_EQ(display.events, (std::vector<std::string>{"refresh", "hide A", "show A"}));
}

// A pick in the gap matches nothing, and the record goes on with the pick before.
TEST_F(CutTools, APickThatMissesGoesOnWithTheOldOne) {
    answer({pick(corner, 3, -1), pick(corner, 7, -1), //
            pick(corner, 5, -1), pick(corner, 9, -1), cancel()});
    CMlineEdit().cmd_mledit_CutSingle(resources);
    // Second cycle: first pick still (3, -1), second (9, -1).
    expectBreaks(0, 1, {0, 3, 9});
}

// Segment 1 of the longer multiline doesn't exist on the shorter one.
TEST_F(CutTools, AnOldPickBeyondTheNewMultilineEndsTheCycle) {
    KdDbMline* const shorter = addMline({{0, 50, 0}, {10, 50, 0}}, {1, -1});
    answer({pick(corner, 11, 3), pick(corner, 11, 5), //
            pick(shorter, 5, 55), pick(shorter, 5, 56), cancel()});
    CMlineEdit().cmd_mledit_CutSingle(resources);
    EXPECT_EQ(breaks(shorter, 0, 1), (Breaks{-1, 0}));
    EXPECT_EQ(user.prompts.back(), L"#4011") << "a failed cycle: nothing to take back";
    EXPECT_TRUE(user.lines.empty());
    EXPECT_EQ(display.events, std::vector<std::string>{"refresh"});
    EXPECT_FALSE(isOpen(shorter));
}

TEST_F(CutTools, WithoutAViewNothingMatchesAndTheCycleFails) {
    view.links = 0;
    answer({pick(corner, 3, -1), pick(corner, 7, -1), cancel()});
    CMlineEdit().cmd_mledit_CutAll(resources);
    // A new run's records stand on segment 0, element 0, at the origin: the two picks are one.
    expectBreaks(0, 0, {0});
    expectBreaks(0, 1, {0});
}

} // namespace
