#include "editCycle.h"

#include "CMlineEdit.h"
#include "EditTool.h"
#include "EngineWorld.h"
#include "ObjectContent.h"
#include "kddbObjects.h"
#include "parameterLists.h"
#include "promptLibrary.h"

using namespace mledit;

namespace {

using orvex::testing::HostSeams;
using Prompts = std::vector<std::wstring>;
using Events = std::vector<std::string>;

// A tool whose step marks the first multiline, and the second where told, and ends as told.
struct TestRun : CMlineEdit {
    std::vector<StepOutcome> outcomes; // of the cycles in turn, then done
    bool marksSecond = false;
    int steps = 0;

    StepOutcome step() {
        mark(m_first);
        if (marksSecond) {
            mark(m_second);
        }
        const auto index = static_cast<std::size_t>(steps++);
        return index < outcomes.size() ? outcomes[index] : StepOutcome::done;
    }
    static void mark(const CMlineSegment& seg) {
        std::vector<double> list = lineList(seg.m_mline, 0, 0);
        list.push_back(list.back() + 1.0);
        storeLineList(seg.m_mline, 0, 0, list);
    }
};

class EditCycle : public orvex::testing::EngineWorld {
protected:
    KdDbMline* a = addMline({{0, 0, 0}, {10, 0, 0}}, {0});
    KdDbMline* b = addMline({{0, 5, 0}, {10, 5, 0}}, {0});
    KdDbObject* line = addLine();
    TestRun run;
    EditTool tool = withStep(Tool::closedCross);

    // The row of a tool with the test's step.
    static EditTool withStep(Tool tool) {
        EditTool row = editTool(tool);
        row.initialise = &CMlineEdit::mlineEditInitialize;
        row.step = [](CMlineEdit& edit) { return static_cast<TestRun&>(edit).step(); };
        return row;
    }
    int play(std::initializer_list<orvex::PromptAnswer> answers) {
        answer(answers);
        return runTool(run, tool, resources);
    }
    std::size_t marks(const KdDbMline* mline) const { return breaks(mline, 0, 0).size() - 2; }

    orvex::PromptAnswer onA = pick(a, 5, 0);
    orvex::PromptAnswer onB = pick(b, 5, 5);
};

TEST_F(EditCycle, endsWithTheStatusOfTheLastPrompt) {
    EXPECT_EQ(play({cancel()}), -5002);
    EXPECT_EQ(play({enter()}), 5000);
    EXPECT_EQ(play({onA, enter()}), 5000);
    EXPECT_EQ(play({onA, cancel()}), -5002);
    EXPECT_FALSE(isOpen(a)) << "open for read across the second prompt, closed at the exit";
    EXPECT_EQ(run.steps, 0);
    EXPECT_EQ(display.events, Events{});
    answer({onA});
    TestRun fresh;
    EXPECT_EQ(runTool(fresh, EditTool(), resources), 5100) << "without a step nothing runs";
    EXPECT_TRUE(user.prompts.empty());
}

TEST_F(EditCycle, offersNoKeywordsThatAnotherCommandLeft) {
    kdedInitGet(0, L"OTHER");
    play({onA, cancel()});
    EXPECT_EQ(user.prompts, (Prompts{L"#4004", L"#4005"}));
}

TEST_F(EditCycle, repeatsItsPromptsUntilAMultilineIsPicked) {
    play({pick(line, 1, 1), miss(), onA, pick(line, 1, 1), miss(), onB, cancel()});
    EXPECT_EQ(user.prompts, (Prompts{L"#4004", L"#4004", L"#4004", L"#4005", L"#4005", L"#4005",
                                     L"#4003 [UNDO]"}));
    EXPECT_EQ(run.steps, 1);
    EXPECT_TRUE(user.lines.empty());
    EXPECT_FALSE(isOpen(a));
    EXPECT_FALSE(isOpen(b));
}

TEST_F(EditCycle, closesAtItsEndWhatTheLastCycleHadPickedSecond) {
    user.onPrompt = [this] {
        if (user.prompts.size() == 3) {
            KdDbMline* again = nullptr;
            kddbOpenObject(again, b->objectId(), kForRead);
        }
    };
    play({onA, onB, cancel()});
    EXPECT_FALSE(isOpen(b));
}

TEST_F(EditCycle, anErrorEndsTheToolWhenTheInputIsClosed) {
    HostSeams::current().errorNumber = 52;
    EXPECT_EQ(play({miss(), onA}), -5001);
    EXPECT_EQ(user.prompts.size(), 1U);
    EXPECT_EQ(play({onA, miss(), cancel()}), -5002) << "only at the first prompt";
}

TEST_F(EditCycle, takesBackTheLastCycleAlone) {
    play({onA, onB, onA, onB, keyword(L"undo"), cancel()});
    EXPECT_EQ(marks(a), 1U) << "the first cycle stays";
    EXPECT_EQ(user.prompts.back(), L"#4004") << "one deep";
    EXPECT_EQ(display.events, (Events{"refresh", "refresh", "show A"}));
}

TEST_F(EditCycle, copiesTheSecondEntityForToolsThatChangeIt) {
    run.marksSecond = true;
    play({onA, onB, keyword(L"UNDO")});
    EXPECT_EQ(marks(a), 0U);
    EXPECT_EQ(marks(b), 1U) << "one copy, so the second stays changed";
    tool = withStep(Tool::openCross);
    play({onA, onB, keyword(L"UNDO")});
    EXPECT_EQ(marks(b), 1U) << "as before this cycle";
    // One entity twice.
    play({onA, onA, keyword(L"UNDO")});
    EXPECT_EQ(marks(a), 0U);
    EXPECT_EQ(display.events, (Events{"refresh", "show A"}));
    EXPECT_FALSE(isOpen(a));
}

TEST_F(EditCycle, hidesWhatTheRowSaysBeforeWritingBack) {
    struct {
        Tool number;
        Events events;
    } const cases[] = {
        {Tool::openTee, {"refresh", "hide A", "show A", "show B"}},
        {Tool::mergedTee, {"refresh", "show A", "show B"}},
        {Tool::cornerJoint, {"refresh", "hide A", "show A", "hide B", "show B"}},
        {Tool::addVertex, {"refresh", "hide A", "show A"}},
        {Tool::deleteVertex, {"refresh", "hide A", "show A"}},
        {Tool::cutSingle, {"refresh", "hide A", "show A"}},
        {Tool::weldAll, {"refresh", "hide A", "show A"}},
    };
    for (const auto& c : cases) {
        tool = withStep(c.number);
        using Second = EditTool::SecondPick;
        const orvex::PromptAnswer undo = keyword(L"UNDO");
        if (tool.secondPick == Second::none) {
            play({onA, undo});
        } else {
            play({onA, tool.secondPick == Second::multiline ? onB : onA, undo});
        }
        EXPECT_EQ(display.events, c.events) << static_cast<int>(c.number);
    }
}

TEST_F(EditCycle, aFailedCycleDropsTheCopiesOfEarlierOnes) {
    tool = withStep(Tool::openCross);
    for (const StepOutcome failure : {StepOutcome::failedSilently, StepOutcome::noCrossing}) {
        TestRun fresh;
        fresh.outcomes = {StepOutcome::done, failure};
        answer({onA, onB, onA, onB, cancel()});
        runTool(fresh, tool, resources);
        EXPECT_EQ(user.prompts[2], L"#4003 [UNDO]");
        EXPECT_EQ(user.prompts[4], L"#4004");
        EXPECT_EQ(fresh.m_undoFirst, nullptr);
        EXPECT_EQ(fresh.m_undoSecond, nullptr);
        EXPECT_EQ(display.events, Events{"refresh"}) << "of the first cycle";
        EXPECT_EQ(user.lines, failure == StepOutcome::noCrossing ? Prompts{L"#4007"} : Prompts{});
        EXPECT_FALSE(isOpen(a));
    }
}

TEST_F(EditCycle, refusesClosedMultilinesWhereTheToolDoes) {
    KdDbMline* const ring = addMline({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}}, {0}, true);
    const auto onRing = pick(ring, 5, 0);
    tool = withStep(Tool::closedCross);
    play({onRing, onB, cancel()});
    EXPECT_EQ(run.steps, 1) << "crosses take them";

    for (const Tool refusing :
         {Tool::closedTee, Tool::openTee, Tool::mergedTee, Tool::cornerJoint}) {
        TestRun fresh;
        answer({onRing, cancel()});
        runTool(fresh, withStep(refusing), resources);
        EXPECT_EQ(user.lines, Prompts{L"#4006"}) << static_cast<int>(refusing);
        EXPECT_EQ(user.prompts, (Prompts{L"#4004", L"#4004"})) << static_cast<int>(refusing);
    }
    EXPECT_TRUE(isOpen(ring)) << "the refused one stays open for read";
}

// The corner joint refuses at the second pick too and starts over, with the first record on the
// new pick and the copies of the cycle before. UNDO then writes them to that pick.
TEST_F(EditCycle, aRefusedSecondPickKeepsTheFirstRecordOfTheNewPick) {
    KdDbMline* const ring = addMline({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}}, {0}, true);
    const auto onRing = pick(ring, 5, 0);
    KdDbMline* const c = addMline({{0, 7, 0}, {10, 7, 0}, {20, 7, 0}}, {0});
    const auto original = a->content();
    tool = withStep(Tool::cornerJoint);
    play({onA, onB, pick(c, 5, 7), onRing, keyword(L"UNDO"), cancel()});
    // The refused name is still there when the keyword comes, and is refused once more.
    EXPECT_EQ(user.lines, (Prompts{L"#4006", L"#4006"}));
    EXPECT_EQ(user.prompts[4], L"#4003 [UNDO]") << "back to the first prompt";
    EXPECT_EQ(marks(a), 1U);
    EXPECT_TRUE(c->content()->equals(*original));
}

TEST_F(EditCycle, singlePickToolsAskOnce) {
    tool = withStep(Tool::addVertex);
    play({onA, keyword(L"UNDO"), onB, cancel()});
    EXPECT_EQ(user.prompts, (Prompts{L"#4009", L"#4008 [UNDO]", L"#4009", L"#4008 [UNDO]"}));
    EXPECT_EQ(display.events, (Events{"refresh", "hide A", "show A", "refresh"}));
    EXPECT_EQ(marks(a), 0U);
}

TEST_F(EditCycle, aRowThatTakesAnyEntityCountsALineAsDone) {
    tool = withStep(Tool::weldAll);
    const auto onLine = pick(line, 1, 1);
    play({miss(), onLine, onA, onLine, keyword(L"UNDO"), cancel()});
    EXPECT_EQ(user.prompts,
              (Prompts{L"#4011", L"#4011", L"#4012", L"#4012", L"#4010 [UNDO]", L"#4011"}));
    EXPECT_EQ(run.steps, 0);
    EXPECT_EQ(display.events, (Events{"refresh", "hide C", "show C"}));
    // Its exit closes nothing.
    play({onA, cancel()});
    EXPECT_TRUE(isOpen(a));
}

TEST_F(EditCycle, anEntityThatGoesAwayBetweenThePicksFailsTheCycle) {
    user.onPrompt = [this] {
        if (user.prompts.size() == 2) {
            a->erase();
        }
    };
    play({onA, onB, cancel()});
    EXPECT_EQ(run.steps, 0);
    EXPECT_EQ(user.prompts.back(), L"#4004");
    EXPECT_EQ(display.events, Events{});
    EXPECT_FALSE(isOpen(b));
}

} // namespace
