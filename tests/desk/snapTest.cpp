#include "DeskFixture.h"

#include <QMenu>

namespace orvex::testing {

namespace {

class SnapFixture : public DeskFixture {
protected:
    // With the middle of the canvas at the point, so many pixels from it.
    Step clickBeside(double x, double y, QPoint pixels, Qt::KeyboardModifiers held = {}) {
        return [this, x, y, pixels, held] {
            PlanView& view = window->session()->view();
            view.setView({x, y}, view.viewHeight());
            canvas()->viewChanged();
            QTest::mouseClick(canvas(), Qt::LeftButton, held, pixelAt(x, y) + pixels);
        };
    }
    // Two multilines, 20 wide, in an empty part of the plan, with ends that aren't short in
    // decimals. A pixel is less than a unit.
    void playAfterWalls(std::deque<Step> then) {
        play(joined(
            {{openPlan(), type("zoom\nc\n-5000,-5000\n400\nmline\nst\nstandard\ns\n20\nj\nz\n"
                               "-5000.1,-5000.300000000001\n-4900,-5000.300000000001\n\n"
                               "mline\n-5000.1,-4800\n-4900,-4700\n")},
             std::move(then)}));
    }
    [[nodiscard]] QString given() const { return lastLine().section(": ", -1); }
    [[nodiscard]] bool isChecked(const char* action) const {
        return window->findChild<QAction*>(action)->isChecked();
    }
    [[nodiscard]] QString word() const { return window->findChild<QLabel*>("snapWord")->text(); }
};

TEST_F(SnapFixture, snappedPointsAreGivenInFullAndPlayTheSameBytes) {
    std::string byHand;
    playAfterWalls({
        type("mline"),
        clickBeside(-5000.1, -5000.3, {5, 4}),
        [this] { EXPECT_EQ(given(), "-5000.1,-5000.300000000001"); },
        clickBeside(-4950.05, -4750, {4, -3}),
        [this] { EXPECT_EQ(given(), "-4950.05,-4750") << "the middle of the other"; },
        clickBeside(-5000.1, -4800, {-4, 4}, Qt::ControlModifier),
        [this] { EXPECT_NE(given(), "-5000.1,-4800") << "Ctrl is without snap"; },
        clickBeside(-4900, -4700, {-4, 4}),
        [this] { EXPECT_EQ(given(), "-4900,-4700"); },
        type(""),
        [&] { byHand = bytes(); },
    });
    EXPECT_EQ(byHand, bytesByScript(script()));
}

TEST_F(SnapFixture, aWordHoldsForTheNextPointAndGoesWithEscapeFirst) {
    playAfterWalls({
        type("mline\nmid"),
        [this] { EXPECT_EQ(word(), "MID"); },
        key(Qt::Key_Escape),
        [this] {
            EXPECT_EQ(word(), "");
            EXPECT_TRUE(prompt().startsWith("Start point")) << "the command goes on";
        },
        type("mid"),
        clickBeside(-4950, -5000.3, {5, 4}),
        [this] {
            EXPECT_EQ(given(), "-4950.05,-5000.3");
            EXPECT_EQ(word(), "");
        },
        type("non"),
        clickBeside(-4900, -4700, {-4, 4}),
        [this] { EXPECT_NE(given(), "-4900,-4700"); },
        type("middles"),
        [this] { EXPECT_TRUE(history().contains("'middles' is not a point")); },
        key(Qt::Key_Escape),
        type("mid"),
        [this] { EXPECT_EQ(word(), "") << "no point is asked"; },
    });
}

TEST_F(SnapFixture, switchModesAndStepAreKept) {
    playAfterWalls({
        type("snap"),
        [this] {
            input().setText("mid,per");
            QTest::keyClick(&input(), Qt::Key_Return);
        },
        type("mline"),
        clickBeside(-4900, -4700, {-4, 4}),
        [this] { EXPECT_NE(given(), "-4900,-4700") << "ends are off"; },
        clickBeside(-4950, -5000.3, {5, 4}),
        [this] { EXPECT_EQ(given(), "-4950.05,-5000.3"); },
        key(Qt::Key_Escape),
        trigger("snap"),
        trigger("step30"),
        [this] {
            EXPECT_FALSE(isChecked("snap"));
            EXPECT_TRUE(isChecked("polar"));
            makeWindow();
            EXPECT_FALSE(isChecked("snap"));
            EXPECT_TRUE(isChecked("snapMID"));
            EXPECT_FALSE(isChecked("snapEND"));
            EXPECT_TRUE(isChecked("step30"));
            EXPECT_TRUE(isChecked("polar"));
        },
        type("snap\nall"),
        [this] {
            EXPECT_TRUE(isChecked("snap"));
            EXPECT_TRUE(isChecked("snapEND"));
        },
    });
}

TEST_F(SnapFixture, directionsKeepPointsOnRaysUnlessATargetWins) {
    playAfterWalls({
        type("mline\n-5000.1,-4900.7"),
        trigger("ortho"),
        clickBeside(-4930, -4913, {0, 0}),
        [this] { EXPECT_EQ(given().section(',', 1), "-4900.7") << "level with its base"; },
        clickBeside(-4900, -4700, {4, 4}),
        [this] { EXPECT_EQ(given(), "-4900,-4700") << "an end is stronger"; },
        type("-4980,-4760"),
        clickBeside(-4950.05 + 20, -4750 + 19.9, {0, 0}), // on the lower wall, which is slanted
        [this] { EXPECT_TRUE(given().endsWith(",-4760")) << given().toStdString(); },
        trigger("polar"),
        [this] { EXPECT_FALSE(isChecked("ortho")); },
        type("-4700,-4900"),
        clickBeside(-4650, -4851, {0, 0}),
        [this] {
            const QStringList xy = given().split(',');
            EXPECT_NEAR(xy[0].toDouble() + 4700, xy[1].toDouble() + 4900, 1e-9);
        },
        clickBeside(-4560, -4800, {0, 0}), // far from any ray
        [this] { EXPECT_NEAR(given().section(',', 1).toDouble(), -4800, 1.0); },
        key(Qt::Key_Escape),
    });
}

TEST_F(SnapFixture, theKeyboardAloneMovesTheCrossAndClicks) {
    playAfterWalls({
        type("zoom\nc\n-5000.1,-4900\n400\nmline"),
        [this] { QApplication::setActiveWindow(window.get()); },
        trigger("nextArea"),
        [this] {
            EXPECT_TRUE(canvas()->isCrossOn());
            QTest::keyClick(canvas(), Qt::Key_Down, Qt::ControlModifier);
            QTest::keyClick(canvas(), Qt::Key_Down, Qt::ControlModifier);
            QTest::keyClick(canvas(), Qt::Key_Return);
        },
        [this] { EXPECT_EQ(given().section(',', 0, 0), "-5000.1"); },
        trigger("snap"),
        [this] {
            const PlanPoint before = canvas()->pointAtCursor()->at;
            QTest::keyClick(canvas(), Qt::Key_Right, Qt::ShiftModifier);
            QTest::keyClick(canvas(), Qt::Key_Up);
            const PlanPoint after = canvas()->pointAtCursor()->at;
            const double pixel = canvas()->unitsPerPixel();
            EXPECT_NEAR(after.x - before.x, 10 * pixel, 1.5 * pixel);
            EXPECT_NEAR(after.y - before.y, pixel, 1.5 * pixel);
        },
        trigger("snap"),
        trigger("previousArea"),
        [this] { EXPECT_FALSE(canvas()->isCrossOn()); },
        key(Qt::Key_Escape),
        type("erase"), // a selection by keys
        trigger("nextArea"),
        [this] {
            QTest::keyClick(canvas(), Qt::Key_Down, Qt::ControlModifier);
            QTest::keyClick(canvas(), Qt::Key_Return);
        },
        [this] { EXPECT_EQ(canvas()->selected().size(), 1U); },
        trigger("previousArea"),
        key(Qt::Key_Escape),
    });
}

} // namespace

} // namespace orvex::testing
