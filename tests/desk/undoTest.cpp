#include "DeskFixture.h"

#include "BlockList.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "UndoDesk.h"

#include <QMessageBox>
#include <QPushButton>

namespace orvex::testing {

namespace {

class UndoInWindow : public DeskFixture {
protected:
    // A multiline of two lines, 1 apart: the chain is one of them.
    Step draw(const QStringList& points) {
        return [this, points] { window->start("MLINE", points + QStringList{"", ""}); };
    }
    Step note() {
        return [this] { states.push_back(bytes()); };
    }
    Step expectState(std::size_t index) {
        return [this, index] { EXPECT_EQ(bytes(), states.at(index)) << index; };
    }
    Step expectPrompt(const QString& words) {
        return [this, words] { EXPECT_TRUE(prompt().contains(words)) << prompt().toStdString(); };
    }
    static std::deque<Step> times(int count, const std::function<std::deque<Step>(int)>& steps) {
        std::deque<Step> all;
        for (int i = 0; i < count; ++i) {
            all = joined({all, steps(i)});
        }
        return all;
    }

    [[nodiscard]] ChangeLog& changes() const {
        return window->session()->database().core().changes();
    }
    [[nodiscard]] std::size_t entities() const {
        std::size_t count = 0;
        for (const KdDbStub* const stub :
             window->session()->database().core().blocks().modelSpace().entities) {
            count += stub->erased ? 0 : 1;
        }
        return count;
    }
    [[nodiscard]] QString nameOf(const char* action) const {
        return window->findChild<QAction*>(action)->text();
    }

    std::vector<std::string> states;
    const QString firstPick = "Select the first multiline";
};

TEST_F(UndoInWindow, endsWhatIsNearestAndNeverWhatWasFinishedBeforeTheCommand) {
    bool isHeld = false;
    std::optional<PlanPoint> base;
    const auto noteBase = [&] { base = canvas()->aim().base; };
    play({
        draw({"0,0", "100,0"}),
        note(),
        [&] {
            window->findChild<UndoDesk*>()->addHold([&] { return std::exchange(isHeld, false); });
        },
        // In a chain: the window, what is held, the points, at last the command.
        type("MLINE\n0,20\n50,20\n50,40"),
        [&] { isHeld = true; },
        trigger("zoomWindow"),
        expectPrompt("(first corner of the zoom window)"),
        trigger("undo"),
        [this] { EXPECT_TRUE(prompt().startsWith("Next point")); },
        [&] { EXPECT_TRUE(isHeld); },
        trigger("undo"),
        [&] { EXPECT_FALSE(isHeld); },
        noteBase,
        [&] {
            EXPECT_EQ(base, (PlanPoint{50, 40}));
        },
        trigger("undo"),
        noteBase,
        [&] {
            EXPECT_EQ(base, (PlanPoint{50, 20}));
        },
        type("u"),
        trigger("undo"),
        expectPrompt("Start point"),
        type("S"),
        expectPrompt("Scale"),
        trigger("undo"),
        expectPrompt("Command:"),
        expectState(0),
        // At other questions the command goes and nothing else, whichever way one asks for it.
        type("MOVE\nU"),
        expectPrompt("Command:"),
        type("-MLEDIT"),
        [this] { QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier); },
        expectPrompt("Command:"),
        type("-MLEDIT\nOT"),
        trigger("redo"),
        expectPrompt(firstPick),
        trigger("undo"),
        expectPrompt("Command:"),
        expectState(0),
        // A pending window ends by Escape alone.
        type("MLINE"),
        trigger("zoomWindow"),
        key(Qt::Key_Escape),
        expectPrompt("Start point"),
        key(Qt::Key_Escape),
        expectPrompt("Command:"),
        [this] { EXPECT_EQ(nameOf("undo"), "&Undo MLINE, 1 multiline"); },
        trigger("undo"),
        [this] {
            EXPECT_EQ(entities(), 0U);
            EXPECT_EQ(nameOf("undo"), "&Undo");
            EXPECT_EQ(nameOf("redo"), "&Redo MLINE, 1 multiline");
        },
        trigger("redo"),
        expectState(0),
    });
}

TEST_F(UndoInWindow, tenTeesAreTakenBackOneByOneAndBroughtBack) {
    const auto at = [](int i, int y) {
        return QString::number(10 * (i + 1)) + ',' + QString::number(y);
    };
    const auto undo = [&](int i) {
        return std::deque<Step>{trigger("undo"), expectState(static_cast<std::size_t>(9 - i)),
                                expectPrompt(firstPick)};
    };
    play(joined({
        {draw({"0,0", "110,0"})},
        times(10,
              [&](int i) {
                  return std::deque<Step>{draw({at(i, 30), at(i, 5)})};
              }),
        {type("ZOOM"), type("E"), type("-MLEDIT"), type("OT"), note()},
        times(10,
              [&](int i) {
                  return std::deque<Step>{type(at(i, 20)), type(at(i, 0)), note()};
              }),
        times(10, undo),
        {[this] { EXPECT_FALSE(changes().mark()); }},
        times(
            10,
            [&](int i) {
                return std::deque<Step>{type("REDO"), expectState(static_cast<std::size_t>(i) + 1)};
            }),
        times(4, undo),
        {key(Qt::Key_Return), expectPrompt("Command:"), expectState(6)},
        times(4,
              [&](int i) {
                  return std::deque<Step>{trigger("redo"),
                                          expectState(static_cast<std::size_t>(i) + 7)};
              }),
        // Four steps of their own and the one that the tool made.
        times(5, [&](int) { return std::deque<Step>{trigger("undo")}; }),
        {expectState(0)},
        times(20, [&](int) { return std::deque<Step>{trigger("undo")}; }),
        {[this] { EXPECT_EQ(entities(), 0U); }},
        times(20, [&](int) { return std::deque<Step>{trigger("redo")}; }),
        {expectState(10)},
    }));
    for (std::size_t i = 0; i + 1 < states.size(); ++i) {
        EXPECT_NE(states[i], states[i + 1]) << i;
    }
}

// The tool's own keyword would write the second corner's first multiline over by the first's.
TEST_F(UndoInWindow, aRefusedPickOfTheCornerJointLeadsNowhereElse) {
    play({
        draw({"0,0", "50,0"}),
        draw({"60,10", "60,60"}),
        draw({"200,0", "250,0"}),
        [this] {
            window->start("MLINE", {"300,0", "350,0", "350,50", "C"});
        },
        type("ZOOM\nE\n-MLEDIT\nCJ"),
        note(),
        type("25,0\n60,40"),
        note(),
        type("225,0"),
        type("325,0"), // closed
        expectPrompt(firstPick),
        expectState(1),
        [this] { EXPECT_NE(states[0], states[1]); },
        trigger("undo"),
        expectPrompt(firstPick),
        expectState(0),
        [this] { EXPECT_FALSE(prompt().contains("UNDO", Qt::CaseInsensitive)); },
        trigger("redo"),
        expectState(1),
        trigger("undo"),
        type("25,0\n60,40"),
        key(Qt::Key_Return),
        expectState(1),
        trigger("undo"), // the one run of the tool that the user knows of
        expectState(0),
    });
}

TEST_F(UndoInWindow, aFirstPickIsDroppedAndTheCommandLineStaysAScript) {
    play({
        openPlan(),
        note(),
        type("-MLEDIT\nCA\n2200,0 #7A\n4210,0 #7A"),
        note(),
        type("5000,0 #7A"),
        trigger("undo"),
        expectState(1),
        type("6500,0 #7A\n7510,0 #7A"),
        note(),
        type("8500,0 #7A\n9000,0 #7A"),
        trigger("undo"),
        expectState(2),
        key(Qt::Key_Return),
        expectState(2),
        trigger("undo"),
        expectState(0),
        trigger("redo"),
        expectState(2),
        type("MLINE\n0,0\n1000,0"),
        trigger("undo"),
        type("2000,0"),
        key(Qt::Key_Escape), // keeps what was confirmed
        note(),
        type("MLINE\n0,500"),
        key(Qt::Key_Escape), // one point is nothing
        expectState(3),
        type("MLINE\n0,700\n900,700"),
        trigger("save"), // ends the chain likewise
        expectPrompt("Command:"),
    });
    EXPECT_NE(states[2], states[3]);
    EXPECT_NE(readFile(plan), states[3]);
    expectSavedByScript();
}

TEST_F(UndoInWindow, theQuestionAboutChangesLeavesTheCommandRunning) {
    play({
        openPlan(),
        type("MLINE\n0,0\n1000,0"),
        trigger("new"), // the chain is no change yet, but will be one
        answer(QMessageBox::Cancel),
        expectPrompt("Next point"),
        trigger("exit"),
        answer(QMessageBox::Cancel),
        type("1000,1000"),
        trigger("new"),
        answer(QMessageBox::Save),
        [this] { EXPECT_EQ(entities(), 0U); },
        type("MLINE"), // nothing to ask about
        type("0,0"),
        trigger("exit"),
        [this] { EXPECT_FALSE(window->isVisible()); },
    });
    makeWindow();
    play({openPlan(), [this] { EXPECT_NE(bytes(), original); }});
    EXPECT_THAT(readFile(plan), ::testing::HasSubstr("MLINE"));
}

} // namespace

} // namespace orvex::testing
