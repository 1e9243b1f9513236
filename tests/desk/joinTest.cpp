#include "WallsFixture.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>

#include <utility>

namespace orvex::testing {

namespace {

class JoinFixture : public WallsFixture {
protected:
    [[nodiscard]] QString summary() const {
        return window->findChild<QLabel*>("joinSummary")->text();
    }
    [[nodiscard]] std::pair<int, int> marks() const { // planned, left
        std::pair<int, int> counts;
        for (const CanvasMark& mark : canvas()->marks()) {
            ++(mark.kind == MarkKind::planned ? counts.first : counts.second);
        }
        return counts;
    }
    // What was typed and clicked, without what was said.
    [[nodiscard]] std::string commands() const {
        QString text = QString::fromStdString(script());
        return text.remove(QRegularExpression("left, [^\n]*\n")).toStdString();
    }
};

TEST_F(JoinFixture, clicksAndWindowsSelectWhatTheirScriptSelects) {
    playOnWalls({
        type("MLJOIN"),      clickAt(200, 0),
        selects(1),          clickAt(200, 0, Qt::ShiftModifier),
        selects(0),          drag({-50, 150}, {450, -150}), // within: the first three
        selects(3),          drag({320, 60}, {280, 40}, Qt::ShiftModifier), // touches the third
        selects(2),          drag({610, 10}, {590, -10}),
        selects(4),          drag({590, 10}, {610, -10}), // within: none
        selects(4),          clickAt(500, 200), // beside all: a corner, which Escape gives up first
        key(Qt::Key_Escape), [this] { EXPECT_EQ(canvas()->aim().kind, AimKind::selection); },
        key(Qt::Key_Return), selects(4),
        key(Qt::Key_Return), [this] { EXPECT_TRUE(history().contains("1 joined, 1 left")); },
        type("MLJOIN"),      type("P"),
        selects(4),          key(Qt::Key_Escape),
    });
    EXPECT_TRUE(history().contains("Remove"));
    EXPECT_TRUE(history().contains(" #"));
    expectSameBy(commands());
}

TEST_F(JoinFixture, thePanelJoinsAsItsEchoDoes) {
    std::string before;
    playOnWalls({
        [this, &before] { before = bytes(); },
        trigger("mljoin"),
        click("joinGo"), // all
        [this] {
            EXPECT_TRUE(summary().startsWith("2 joints to make: 1 cross, 1 tee"))
                << summary().toStdString();
            EXPECT_EQ(marks(), std::pair(2, 1));
        },
        click("joinCrossNone"),
        click("joinTeeMerged"),
        click("joinCorners"),
        [this, &before] {
            EXPECT_TRUE(summary().startsWith("1 joint to make: 1 tee"));
            EXPECT_EQ(marks(), std::pair(1, 1));
            EXPECT_EQ(bytes(), before);
            auto& tolerance = *window->findChild<QLineEdit*>("joinTolerance");
            tolerance.setFocus();
            QTest::keyClicks(&tolerance, "0.5"); // the stem is 4 short
            QTest::keyClick(&tolerance, Qt::Key_Return);
        },
        [this] {
            EXPECT_EQ(marks().first, 0) << summary().toStdString();
            auto& tolerance = *window->findChild<QLineEdit*>("joinTolerance");
            tolerance.setFocus();
            tolerance.clear();
            QTest::keyClick(&tolerance, Qt::Key_Return);
        },
        [this] { EXPECT_EQ(marks().first, 1); },
        click("joinGo"),
        [this, &before] {
            EXPECT_TRUE(summary().startsWith("1 joint was made: 1 tee")) << summary().toStdString();
            EXPECT_EQ(marks(), std::pair(0, 1)) << "until the next command";
            EXPECT_FALSE(window->findChild<QWidget*>("joinDock")->isHidden());
            EXPECT_NE(bytes(), before);
        },
    });
    const std::string joined = bytes();
    const double height = window->session()->view().viewHeight();
    play({
        [this] {
            auto& list = *window->findChild<QListWidget*>("joinLeft");
            ASSERT_EQ(list.count(), 1);
            EXPECT_TRUE(list.item(0)->text().contains("stands here twice"));
            emit list.itemClicked(list.item(0));
        },
        [this, height] {
            EXPECT_LT(window->session()->view().viewHeight(), height);
            EXPECT_NEAR(window->session()->view().center().x, 650.0, 20.0);
        },
        trigger("undo"),
        [this, &before] {
            EXPECT_EQ(bytes(), before) << "one step";
            EXPECT_EQ(marks(), std::pair(0, 0));
        },
    });
    const QString typed = QString::fromStdString(commands());
    EXPECT_EQ(bytesOfNewByScript(typed.left(typed.lastIndexOf("U\n")).toStdString()), joined);
}

TEST_F(JoinFixture, aCancelledJoinLeavesNoMarksAndASelectionJoinsItselfAlone) {
    playOnWalls({
        trigger("mljoin"),
        [this] {
            auto& go = *window->findChild<QPushButton*>("joinGo");
            auto& cancel = *window->findChild<QPushButton*>("joinCancel");
            go.setFocus();
            for (QWidget* const last : {&cancel, &cancel}) {
                QTest::keyClick(window->focusWidget(), Qt::Key_Down);
                EXPECT_EQ(window->focusWidget(), last);
            }
        },
        click("joinCancel"),
        [this] {
            EXPECT_TRUE(summary().isEmpty());
            EXPECT_TRUE(window->findChild<QWidget*>("joinDock")->isHidden());
            EXPECT_EQ(window->focusWidget(), &input());
        },
        trigger("mljoin"),
        drag({-50, 150}, {450, -150}),
        [this] {
            EXPECT_EQ(window->findChild<QPushButton*>("joinGo")->text(), "Take the 3 selected");
        },
        click("joinGo"),
        [this] { EXPECT_EQ(marks(), std::pair(2, 0)); },
        click("joinCancel"),
        trigger("mljoin"),
        drag({500, 150}, {510, 140}), // nothing there
        click("joinGo"),              // "all" still means all
        [this] { EXPECT_EQ(marks(), std::pair(2, 1)); },
        click("joinCancel"),
        [this] {
            EXPECT_EQ(marks(), std::pair(0, 0));
            EXPECT_EQ(prompt(), "Command:");
            EXPECT_TRUE(summary().isEmpty());
        },
    });
}

} // namespace

} // namespace orvex::testing
