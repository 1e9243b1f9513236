#pragma once

#include "Canvas.h"
#include "CommandLine.h"
#include "MainWindow.h"
#include "TestPaths.h"
#include "forgetDeskSettings.h"
#include "playOn.h"
#include "wholeFiles.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gmock/gmock.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace orvex::testing {

// Drives the real window on a copy of the sample plan. What a user does is a list of steps: a
// question of a command holds its event loop up, so steps come from there, each as soon as the
// window waits for the user or shows a dialog.
class DeskFixture : public ::testing::Test {
protected:
    using Step = std::function<void()>;

    DeskFixture() {
        std::filesystem::copy_file(sourceDir() / "samples/floorplan.dxf", plan,
                                   std::filesystem::copy_options::overwrite_existing);
        forgetDeskSettings();
        makeWindow();
        window->resize(1000, 800);
    }

    void makeWindow() {
        window.reset();
        window = std::make_unique<MainWindow>(
            modules, std::vector<std::string>{(binDir() / "libOmxMLStyle.omx").string()});
        window->show();
    }

    void play(std::deque<Step> all) {
        steps = std::move(all);
        QEventLoop loop;
        QTimer watchdog;
        QObject::connect(&watchdog, &QTimer::timeout, [&] {
            ADD_FAILURE() << "the window doesn't wait for the user any more: "
                          << history().toStdString();
            std::abort();
        });
        watchdog.start(60'000);
        scheduleNext(loop);
        loop.exec();
        ASSERT_TRUE(steps.empty());
    }

    // ---- what a user does ----
    static std::deque<Step> joined(std::initializer_list<std::deque<Step>> parts) {
        std::deque<Step> all;
        for (const auto& part : parts) {
            all.insert(all.end(), part.begin(), part.end());
        }
        return all;
    }
    Step openPlan() {
        return [this] { window->open(QString::fromStdString(plan.string())); };
    }
    // Lines with Enter, typed where the focus is not.
    Step type(const QString& text) {
        return [this, text] {
            if (text.contains('\n')) {
                steps.push_front(type(text.section('\n', 1)));
            }
            for (const QChar each : text.section('\n', 0, 0)) {
                if (each == ' ') { // a blank is Enter at most questions
                    input().insert(" ");
                } else {
                    QTest::keyClick(canvas(), each.toLatin1());
                }
            }
            QTest::keyClick(&input(), Qt::Key_Return);
        };
    }
    // Any change of the drawing.
    Step edit() {
        return [this] { window->start("MLINE", {"0,0", "1000,0", "", ""}); };
    }
    Step key(Qt::Key which) {
        return [this, which] { QTest::keyClick(canvas(), which); };
    }
    Step trigger(const char* action) {
        return [this, action] { window->findChild<QAction*>(action)->trigger(); };
    }
    Step clickKeyword(const QString& keyword) {
        return [this, keyword] {
            auto* const button = window->findChild<QToolButton*>("keyword" + keyword);
            ASSERT_NE(button, nullptr) << keyword.toStdString();
            QTest::mouseClick(button, Qt::LeftButton);
        };
    }
    // With the mouse, after the plan was moved so that the point is in the middle of the canvas.
    Step pick(double x, double y) {
        return [this, x, y] {
            PlanView& view = window->session()->view();
            view.setView({x, y}, view.viewHeight());
            canvas()->viewChanged();
            clickAt(x, y)();
        };
    }
    Step clickAt(double x, double y, Qt::KeyboardModifiers modifiers = {}) {
        return [this, x, y, modifiers] {
            QTest::mouseClick(canvas(), Qt::LeftButton, modifiers, pixelAt(x, y));
        };
    }
    // The mouse without a button.
    Step hover(double x, double y) {
        return [this, x, y] {
            const QPoint at = pixelAt(x, y);
            QMouseEvent move(QEvent::MouseMove, at, canvas()->mapToGlobal(at), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(canvas(), &move);
        };
    }
    // Waits for what goes on by itself.
    Step until(const std::function<bool()>& isReached) {
        return [this, isReached] {
            if (!isReached()) {
                steps.push_front(until(isReached));
            }
        };
    }
    // Does something to the dialog that is open then.
    template <class Dialog, class Act>
    Step inDialog(Act act) {
        return [act] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
        };
    }
    Step answer(QMessageBox::StandardButton button) {
        return inDialog<QMessageBox>([button](QMessageBox& box) { box.button(button)->click(); });
    }

    // ---- what a user sees ----
    [[nodiscard]] QPoint pixelAt(double x, double y) const {
        const PlanPoint pixel = window->session()->view().toPixels({x, y});
        return {static_cast<int>(pixel.x), static_cast<int>(pixel.y)};
    }
    [[nodiscard]] Canvas* canvas() const { return window->findChild<Canvas*>(); }
    [[nodiscard]] QLineEdit& input() const {
        return *window->findChild<QLineEdit*>("commandInput");
    }
    [[nodiscard]] QString prompt() const {
        return window->findChild<QLabel*>("commandPrompt")->text();
    }
    [[nodiscard]] QString history() const { return window->findChild<CommandLine*>()->history(); }
    [[nodiscard]] QString lastLine() const { return history().section('\n', -1); }

    // What was typed and clicked on the drawing, as a script.
    [[nodiscard]] std::string script() const { return window->session()->record().text(); }

    [[nodiscard]] std::string bytes() const { return window->session()->drawing().bytes(); }

    // A drawing after a script. There is one session at a time, so the window goes.
    std::string bytesByScript(const std::string& script) {
        return bytesByScript(script, std::move(*DrawingFile::openBytes(original)));
    }
    std::string bytesByScript(const std::string& script, std::unique_ptr<DrawingFile> drawing) {
        window.reset();
        SessionSetup setup;
        setup.drawing = std::move(drawing);
        Session session(std::move(setup), modules);
        playOn(session, script);
        return session.drawing().bytes();
    }
    // The plan was changed and saved, and its script makes the same of it.
    void expectSavedByScript() {
        const std::string typed = script();
        const std::string saved = readFile(plan);
        EXPECT_NE(saved, original);
        EXPECT_EQ(saved, bytesByScript(typed.substr(0, typed.find("Saved"))));
    }

    const std::filesystem::path plan = std::filesystem::temp_directory_path() / "plan.dxf";
    const std::string original = readFile(sourceDir() / "samples/floorplan.dxf");
    ModuleLoader modules;
    std::unique_ptr<MainWindow> window;

private:
    [[nodiscard]] bool isReady() const {
        return QApplication::activeModalWidget() != nullptr ||
               (window->waitsForUser() && canvas()->isSettled());
    }
    void scheduleNext(QEventLoop& loop) {
        QTimer::singleShot(1, &loop, [this, &loop] {
            if (!isReady()) {
                scheduleNext(loop);
            } else if (steps.empty()) {
                loop.quit();
            } else {
                const Step step = std::move(steps.front());
                steps.pop_front();
                scheduleNext(loop); // the step may run a loop of its own
                step();
            }
        });
    }

    std::deque<Step> steps;
};

} // namespace orvex::testing
