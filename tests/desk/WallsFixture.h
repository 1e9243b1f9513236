#pragma once

#include "DeskFixture.h"

namespace orvex::testing {

// Walls drawn by hand: a cross, a tee that is short, and one wall twice.
class WallsFixture : public DeskFixture {
protected:
    void playOnWalls(std::deque<Step> then) {
        play(joined({{trigger("new"),
                      type("MLINE\nS\n20\n0,0\n400,0\n\n"
                           "MLINE\n100,-100\n100,100\n\n"
                           "MLINE\n300,100\n300,4\n\n"
                           "MLINE\n600,0\n700,0\n\nMLINE\n600,0\n700,0\n"),
                      [this] { showPlan(); }},
                     std::move(then)}));
    }
    void showPlan() {
        window->session()->view().setView({350.0, 0.0}, 800.0);
        canvas()->viewChanged();
    }

    Step click(const char* name) {
        return [this, name] {
            auto* const button = window->findChild<QAbstractButton*>(name);
            ASSERT_NE(button, nullptr) << name;
            EXPECT_TRUE(button->isEnabled()) << name;
            QTest::mouseClick(button, Qt::LeftButton);
        };
    }
    Step drag(PlanPoint from, PlanPoint to, Qt::KeyboardModifiers modifiers = {}) {
        return [this, from, to, modifiers] {
            QTest::mousePress(canvas(), Qt::LeftButton, modifiers, pixelAt(from.x, from.y));
            const QPoint end = pixelAt(to.x, to.y);
            QMouseEvent move(QEvent::MouseMove, end, canvas()->mapToGlobal(end), Qt::NoButton,
                             Qt::LeftButton, modifiers);
            QCoreApplication::sendEvent(canvas(), &move);
            QTest::mouseRelease(canvas(), Qt::LeftButton, modifiers, end);
        };
    }
    Step selects(std::size_t count) {
        return [this, count] { EXPECT_EQ(canvas()->selected().size(), count); };
    }
    std::string bytesOfNewByScript(const std::string& text) {
        return bytesByScript(text, DrawingFile::create());
    }
    // What the script makes of a new drawing is what was made by hand.
    void expectSameBy(const std::string& script) {
        const std::string byHand = bytes();
        EXPECT_EQ(byHand, bytesOfNewByScript(script));
    }
};

} // namespace orvex::testing
