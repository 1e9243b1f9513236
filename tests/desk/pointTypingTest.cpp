#include "DeskFixture.h"

#include "clickedPoint.h"
#include "qtWide.h"

#include <QEvent>

#include <cmath>

namespace orvex::testing {

namespace {

class PointTypingTest : public DeskFixture {
protected:
    // A pixel of the canvas, counted from its middle.
    Step moveMouse(int x, int y) {
        return [this, x, y] {
            const QPoint middle(canvas()->width() / 2, canvas()->height() / 2);
            const QPoint at = middle + QPoint(x, y);
            QMouseEvent move(QEvent::MouseMove, at, canvas()->mapToGlobal(at), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier); // QTest's may come later
            QCoreApplication::sendEvent(canvas(), &move);
        };
    }
    Step look(double x, double y) {
        return [this, x, y] { canvas()->lookAt({x, y}, 800.0); };
    }
    // A key of some keyboard, as it comes to what has the focus.
    void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(&widget, &event);
    }
    [[nodiscard]] std::pair<double, double> shown() const {
        const auto& point = canvas()->shownPoint();
        return point ? std::pair(point->x, point->y) : std::pair(std::nan(""), std::nan(""));
    }
    // From a base to where a length leads along the mouse.
    [[nodiscard]] KdGePoint3d alongMouse(double baseX, double baseY, double length) const {
        const PlanPoint mouse = canvas()->pointAtCursor()->at;
        const double distance = std::hypot(mouse.x - baseX, mouse.y - baseY);
        return {baseX + (mouse.x - baseX) / distance * length,
                baseY + (mouse.y - baseY) / distance * length, 0.0};
    }
};

TEST_F(PointTypingTest, aBareLengthGoesAlongTheMouseAndIsEchoedAsThePointThatAScriptPlays) {
    KdGePoint3d expected;
    play({
        openPlan(),
        type("MLINE\n20000,0"),
        look(20000, 0),
        moveMouse(100, -75),
        [&] {
            expected = alongMouse(20000, 0, 2500);
            QTest::keyClicks(&input(), "25");
            QTest::keyClicks(&input(), "00");
            EXPECT_EQ(shown(), std::pair(expected.x, expected.y));
        },
        key(Qt::Key_Return),
        [&] {
            EXPECT_TRUE(lastLine().endsWith(": " + toQt(pointText(expected))));
            EXPECT_FALSE(canvas()->shownPoint());
        },
        // The mouse leaves on its way to a panel: its last direction holds.
        [&] {
            const KdGePoint3d next = alongMouse(expected.x, expected.y, 100);
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(canvas(), &leave);
            QTest::keyClicks(&input(), "100");
            EXPECT_EQ(shown(), std::pair(next.x, next.y));
            expected = next;
        },
        key(Qt::Key_Return),
        type("@1000<90\n20000,0"),
        [this] { QTest::keyClicks(&input(), "-12.5"); },
        [this] { QTest::keyClick(&input(), Qt::Key_Right, Qt::ControlModifier); },
        [this] { EXPECT_TRUE(lastLine().endsWith(": 19987.5,0")); },
        [this] { QTest::keyClicks(&input(), "3"); },
        [this] { QTest::keyClick(&input(), Qt::Key_Down, Qt::ControlModifier); },
        [this] {
            EXPECT_TRUE(lastLine().endsWith(": 19987.5,-3"));
            EXPECT_EQ(PromptSession::current().lastPoint, (KdGePoint3d{19987.5, -3, 0}));
        },
        key(Qt::Key_Return),
        trigger("save"),
    });
    expectSavedByScript();
}

TEST_F(PointTypingTest, everyKeyShowsWhereEnterWillGo) {
    play({
        openPlan(),
        type("MLINE\n100,50"),
        look(0, 0),
        moveMouse(10, 10),
        [this] {
            const std::pair<const char*, std::pair<double, double>> cases[] = {
                {"@", {100, 50}},
                {"@30,", {}},
                {"@30,-4", {130, 46}},
                {"@30<180", {70, 50}},
                {"7,8", {7, 8}},
                {"7,8,9,1", {}},
                {"c", {}},
                {"1e308,-1e308", {1e308, -1e308}},
            };
            for (const auto& [text, place] : cases) {
                input().setText(text);
                EXPECT_EQ(canvas()->shownPoint().has_value(), place.first != 0.0) << text;
                if (place.first != 0.0) {
                    EXPECT_EQ(shown(), place) << text;
                }
                canvas()->repaint(); // what is far away is no harm
            }
            input().clear();
            EXPECT_FALSE(canvas()->shownPoint());
        },
        key(Qt::Key_Escape),
        [this] {
            QTest::keyClicks(&input(), "7,8"); // no command
            EXPECT_FALSE(canvas()->shownPoint());
            input().clear();
        },
    });
}

TEST_F(PointTypingTest, whatIsBrokenStaysInTheFieldAtItsPlace) {
    play({
        openPlan(),
        type("MLINE\n100,5x,3"),
        [this] {
            EXPECT_TRUE(lastLine().endsWith("at character 5, '5x' is no number"));
            EXPECT_EQ(input().text(), "100,5x,3");
            EXPECT_EQ(input().cursorPosition(), 4);
            input().clear();
        },
        type("word"),
        [this] { EXPECT_EQ(input().text(), ""); },
        look(0, 0),
        moveMouse(0, 0),
        type("0"),
        [this] {
            EXPECT_TRUE(lastLine().endsWith("a length of 0 leads nowhere"));
            EXPECT_TRUE(prompt().startsWith("Start point"));
            input().clear();
        },
        pick(300, 0), // and the mouse stays where it clicked
        type("10"),
        [this] {
            EXPECT_TRUE(lastLine().endsWith("move the mouse over the drawing"));
            input().clear();
        },
        key(Qt::Key_Escape),
    });
}

TEST_F(PointTypingTest, keysAreJudgedByTheirText) {
    constexpr auto kAltGr = Qt::ControlModifier | Qt::AltModifier;
    QWidget* const places[] = {&input(), canvas(), window.get(),
                               window->findChild<QPlainTextEdit*>("commandHistory")};
    for (QWidget* const place : places) {
        press(*place, Qt::Key_At, kAltGr, "@");
        press(*place, Qt::Key_At, Qt::GroupSwitchModifier, "@");
        press(*place, Qt::Key_1, Qt::KeypadModifier, "1");
        press(*place, Qt::Key_Comma, Qt::KeypadModifier, ",");
        press(*place, Qt::Key_5, Qt::KeypadModifier, "5");
        press(*place, Qt::Key_Comma, Qt::NoModifier, ",");
        press(*place, Qt::Key_O, Qt::AltModifier, "o");
        press(*place, Qt::Key_G, Qt::ControlModifier, "\x07");
        EXPECT_EQ(input().text(), "@@1.5,");
        input().clear();
    }
    // Where coordinates are asked for the comma parts them; at a number a point is meant.
    const auto typeKeypad = [this] {
        press(input(), Qt::Key_1, Qt::KeypadModifier, "1");
        press(input(), Qt::Key_Comma, Qt::KeypadModifier, ",");
        press(input(), Qt::Key_5, Qt::KeypadModifier, "5");
    };
    play({
        openPlan(),
        type("MLINE\nS"),
        typeKeypad,
        [this] { EXPECT_EQ(input().text(), "1.5"); },
        [this] { input().clear(); },
        type("1,5"),
        [this] { EXPECT_TRUE(lastLine().endsWith("decimals follow a point, 1.5")); },
        key(Qt::Key_Return),
        typeKeypad,
        [this] { EXPECT_EQ(input().text(), "1,5"); },
        key(Qt::Key_Escape),
        [this] {
            auto* const scale = window->findChild<QLineEdit*>("scaleField");
            scale->clear();
            press(*scale, Qt::Key_2, Qt::KeypadModifier, "2");
            press(*scale, Qt::Key_Comma, Qt::KeypadModifier, ",");
            EXPECT_EQ(scale->text(), "2.");
            press(*scale, Qt::Key_Comma, Qt::NoModifier, ",");
            QTest::keyClick(scale, Qt::Key_Return);
            EXPECT_EQ(lastLine(), "'2.,' is no number.");
            scale->setText("2,5");
            QTest::keyClick(scale, Qt::Key_Return);
            EXPECT_TRUE(lastLine().endsWith("decimals follow a point, 2.5."));
        },
    });
}

} // namespace

} // namespace orvex::testing
