#include "WallsFixture.h"

#include <QMenu>
#include <QStatusBar>

namespace orvex::testing {

namespace {

class SelectFixture : public WallsFixture {
protected:
    Step marks(std::size_t count) {
        return [this, count] {
            EXPECT_EQ(canvas()->selected().size(), count);
            const auto* const label = window->findChild<QLabel*>("statusSelected");
            EXPECT_EQ(label->isVisible(), count > 0);
            EXPECT_TRUE(count == 0 || label->text().startsWith(QString::number(count)));
        };
    }
    [[nodiscard]] std::size_t entities() const {
        return window->session()->scene().allSeen().size();
    }
};

// Clicks add, windows add what they catch, Shift takes away; what is selected serves the next
// command, whose lines play to the same drawing.
TEST_F(SelectFixture, whatIsSelectedByHandServesTheNextCommand) {
    playOnWalls({
        clickAt(200, 0),
        marks(1),
        drag({60, 200}, {340, -200}),
        marks(3), // the lower end of the short wall, the crossing one
        clickAt(300, 50, Qt::ShiftModifier),
        marks(2),
        drag({450, 200}, {250, -200}, Qt::ShiftModifier),
        marks(1),
        key(Qt::Key_Escape),
        marks(0),
        // Two clicks beside everything make a window, too.
        clickAt(550, 50),
        clickAt(760, -50),
        marks(2),
        type("MOVE"),
        selects(2),
        type("@"), // the window's last corner
        type("760,-300"),
        marks(0),
        trigger("selectPrevious"),
        type("COPY\n0,0\n0,50"),
        key(Qt::Key_Return),
        clickAt(650, -200),
        marks(1),
        trigger("undo"),
        marks(2), // as it was before the command
        key(Qt::Key_Escape),
        marks(0),
        clickAt(100, 50),
        trigger("erase"),
        trigger("selectAll"),
        marks(4),
        type("MLCHANGE\nSC\n10"),
        key(Qt::Key_Return),
        [this] { EXPECT_EQ(entities(), 4U); },
    });
    expectSameBy(script());
}

TEST_F(SelectFixture, menusSelectAndEscapeCancelsBeforeItDeselects) {
    playOnWalls({
        [this] {
            auto* const styles = window->findChild<QAction*>("selectByStyle")->menu();
            emit styles->aboutToShow();
            ASSERT_FALSE(styles->actions().isEmpty());
            styles->actions().front()->trigger();
        },
        marks(5),
        type("ZOOM"),
        key(Qt::Key_Escape),
        marks(5),
        [this] { QTest::mouseClick(canvas(), Qt::RightButton); },
        [this] {
            auto* const menu = window->findChild<QMenu*>("selectionMenu");
            ASSERT_NE(menu, nullptr);
            EXPECT_TRUE(menu->actions().contains(window->findChild<QAction*>("move")));
            menu->close();
        },
        trigger("mline"),
        trigger("erase"), // by a key close to others, it cancels nothing
        [this] { EXPECT_EQ(prompt().left(11), "Start point"); },
        key(Qt::Key_Escape),
        [this] {
            QKeyEvent asked(QEvent::ShortcutOverride, Qt::Key_Delete, Qt::NoModifier);
            asked.ignore();
            QCoreApplication::sendEvent(&input(), &asked);
            EXPECT_FALSE(asked.isAccepted()); // an empty field leaves it to the menu
        },
        trigger("erase"),
        [this] { EXPECT_EQ(entities(), 0U); },
        marks(0),
    });
}

} // namespace

} // namespace orvex::testing
