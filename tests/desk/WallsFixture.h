#pragma once

#include "DeskFixture.h"

namespace orvex::testing {

// Walls drawn by hand: a cross, a tee that is short, and one wall twice.
class WallsFixture : public DeskFixture {
protected:
    static constexpr const char* kWalls = "MLINE\nS\n20\n0,0\n400,0\n\n"
                                          "MLINE\n100,-100\n100,100\n\n"
                                          "MLINE\n300,100\n300,4\n\n"
                                          "MLINE\n600,0\n700,0\n\nMLINE\n600,0\n700,0\n\n";

    std::deque<Step> drawWalls() {
        std::deque<Step> all{trigger("new")};
        const QStringList lines = QString(kWalls).split('\n');
        for (int i = 0; i + 1 < lines.size(); ++i) {
            all.push_back(type(lines[i]));
        }
        all.push_back([this] { showPlan(); });
        return all;
    }
    std::deque<Step> then(std::deque<Step> all, std::deque<Step> more) {
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }
    void showPlan() {
        window->session()->view().setView({350.0, 0.0}, 800.0);
        canvas()->viewChanged();
    }

    [[nodiscard]] QPoint pixelAt(double x, double y) const {
        const PlanPoint pixel = window->session()->view().toPixels({x, y});
        return {static_cast<int>(pixel.x), static_cast<int>(pixel.y)};
    }
    Step click(const char* name) {
        return [this, name] {
            auto* const button = window->findChild<QAbstractButton*>(name);
            ASSERT_NE(button, nullptr) << name;
            EXPECT_TRUE(button->isEnabled()) << name;
            QTest::mouseClick(button, Qt::LeftButton);
        };
    }
    Step clickAt(double x, double y, Qt::KeyboardModifiers modifiers = {}) {
        return [this, x, y, modifiers] {
            QTest::mouseClick(canvas(), Qt::LeftButton, modifiers, pixelAt(x, y));
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
    [[nodiscard]] std::string bytes() const { return window->session()->drawing().bytes(); }
    std::string bytesOfNewByScript(const std::string& text) {
        window.reset();
        ScriptSource source(text, [](const std::wstring&) {});
        SessionSetup setup;
        setup.drawing = DrawingFile::create();
        setup.source = &source;
        Session session(std::move(setup), modules);
        while (!source.atEnd()) {
            const std::wstring command = session.askCommand();
            if (!command.empty()) {
                EXPECT_FALSE(session.run(command)) << narrow(command);
            }
        }
        EXPECT_FALSE(source.failure()) << (source.failure() ? source.failure()->text : "");
        return session.drawing().bytes();
    }
};

} // namespace orvex::testing
