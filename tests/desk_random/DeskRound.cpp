#include "DeskRound.h"

#include "Canvas.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "MainWindow.h"
#include "RandomUser.h"
#include "ScriptSource.h"
#include "TestPaths.h"
#include "forgetDeskSettings.h"
#include "readFile.h"

#include <QAction>
#include <QEventLoop>
#include <QTimer>

#include <unistd.h>

#include <algorithm>
#include <map>
#include <memory>

namespace orvex::testing {

namespace {

constexpr int kEventsBetweenChecks = 120;
constexpr int kMostEscapes = 60;
constexpr unsigned kHangs = 300; // seconds

std::string lineOf(std::string text) {
    std::replace(text.begin(), text.end(), '\n', '|');
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
}

std::string differenceOf(const std::string& is, const std::string& expected) {
    const auto [at, other] = std::mismatch(is.begin(), is.end(), expected.begin(), expected.end());
    const auto place = static_cast<std::size_t>(at - is.begin());
    const std::size_t from = place < 60 ? 0 : place - 60;
    return std::to_string(is.size()) + " bytes, expected " + std::to_string(expected.size()) +
           ", first different at " + std::to_string(place) + ":" + lineOf(is.substr(from, 200)) +
           "\n  expected " + lineOf(expected.substr(from, 200));
}

class Round {
public:
    Round(TimedApplication& application, const RoundPlan& plan)
        : m_application(application), m_plan(plan) {
        forgetDeskSettings();
        m_window = std::make_unique<MainWindow>(
            m_modules, std::vector<std::string>{(binDir() / "libOmxMLStyle.omx").string()});
        m_window->resize(1000, 800);
        m_window->show();
    }

    RoundResult play() {
        if (!m_plan.drawing.empty()) {
            std::filesystem::copy_file(m_plan.drawing, m_copy,
                                       std::filesystem::copy_options::overwrite_existing);
            m_window->open(QString::fromStdString(m_copy.string()));
        }
        m_phase = &Round::begin;
        schedule();
        m_loop.exec();
        if (m_result.faults.empty()) {
            replay();
        }
        return std::move(m_result);
    }

private:
    using Phase = void (Round::*)();

    // The next thing is done as soon as the window waits for its user, from whichever event loop
    // runs then: a question holds up the one that its command was started from.
    void schedule() {
        QTimer::singleShot(0, &m_loop, [this] {
            if (!isReady()) {
                return schedule();
            }
            if (m_phase == nullptr) {
                return m_loop.quit();
            }
            schedule(); // what is done may run a loop of its own
            (this->*m_phase)();
        });
    }

    [[nodiscard]] bool isReady() const {
        return QApplication::activeModalWidget() != nullptr ||
               QApplication::activePopupWidget() != nullptr ||
               (m_window->waitsForUser() && m_window->findChild<Canvas*>()->isSettled());
    }
    [[nodiscard]] bool isIdle() const {
        return QApplication::activeModalWidget() == nullptr &&
               QApplication::activePopupWidget() == nullptr && !m_window->isBusy();
    }

    void begin() {
        m_original = bytes();
        const auto file = readRegularFile(m_copy.string());
        if (!m_plan.drawing.empty() && (!file || *file != m_original)) {
            return fault("the opened drawing isn't the file's bytes");
        }
        m_user.emplace(*m_window, m_plan.seed, changesStyles());
        m_application.takeLongest();
        m_phase = &Round::act;
    }

    void act() {
        alarm(kHangs); // what goes on for ever ends the program, in the middle of its log
        const double longest = m_application.takeLongest();
        m_result.longest = std::max(m_result.longest, longest);
        if (longest > m_plan.patience) {
            return fault("handled for " + std::to_string(longest) + " s: " + m_lastAct);
        }
        if (m_result.events == m_plan.events || m_result.events >= m_nextCheck) {
            m_nextCheck = m_result.events + kEventsBetweenChecks;
            m_escapes = 0;
            m_phase = &Round::end;
            return;
        }
        ++m_result.events;
        noteState();
        m_lastAct = m_user->act().toStdString();
        if (m_plan.log != nullptr) {
            std::fprintf(m_plan.log, "%d %s\n", m_result.events, m_lastAct.c_str());
            std::fflush(m_plan.log);
        }
    }

    void end() {
        if (!isIdle()) {
            return ++m_escapes > kMostEscapes ? fault("Escape doesn't end what runs")
                                              : m_user->escape();
        }
        m_reached = bytes();
        m_depth = changes().undoDepth();
        m_result.steps += m_depth;
        m_phase = &Round::undo;
    }

    void undo() {
        if (changes().undoDepth() > 0) {
            return trigger("undo");
        }
        m_phase = &Round::redo;
        expectBytes(m_original, "after undoing all");
    }

    void redo() {
        if (changes().undoDepth() < m_depth && changes().redoDepth() > 0) {
            return trigger("redo");
        }
        m_phase = m_result.events < m_plan.events ? &Round::act : nullptr;
        expectBytes(m_reached, "after redoing all");
        m_application.takeLongest(); // a check is nobody's event
    }

    // What the drawing is between two commands.
    void noteState() {
        if (!m_window->isBusy()) {
            m_states[m_window->session()->record().lineCount()] = bytes();
        }
    }

    void replay() {
        const ScriptRecord& record = m_window->session()->record();
        m_result.isReplayed = record.isWhole();
        const std::string script = record.text();
        m_window.reset(); // there is one session at a time
        if (!m_result.isReplayed) {
            return;
        }
        ScriptSource source(script, [](const std::wstring&) {});
        SessionSetup setup;
        setup.drawing = m_plan.drawing.empty() ? DrawingFile::create()
                                               : std::move(*DrawingFile::openBytes(m_original));
        setup.source = &source;
        Session session(std::move(setup), m_modules);
        while (!source.atEnd() && m_result.faults.empty()) {
            const std::wstring command = session.askCommand();
            const auto failure = command.empty() ? std::nullopt : session.run(command);
            const std::string line = "line " + std::to_string(source.line()) + " of the history: ";
            if (failure) {
                fault(line + messageOf(*failure));
            } else if (source.failure()) {
                fault(line + messageOf(*source.failure()));
            } else if (const auto state = m_states.find(source.line()); state != m_states.end()) {
                expectSame(session.drawing().bytes(), state->second, line);
            }
        }
        if (m_result.faults.empty()) {
            expectSame(session.drawing().bytes(), m_reached, "the whole history: ");
        } else if (m_plan.log != nullptr) {
            std::fprintf(m_plan.log, "---- the history ----\n%s", script.c_str());
        }
    }

    void trigger(const char* action) { m_window->findChild<QAction*>(action)->trigger(); }
    void expectBytes(const std::string& expected, const char* when) {
        expectSame(bytes(), expected, std::string(when) + ": ");
    }
    void expectSame(const std::string& is, const std::string& expected, const std::string& what) {
        if (is != expected) {
            fault(what + differenceOf(is, expected));
        }
    }
    void fault(const std::string& what) {
        m_result.faults.push_back("event " + std::to_string(m_result.events) + ", " + what);
        m_phase = nullptr;
    }
    // Every fourth, since no script can say what a dialog made of a style.
    [[nodiscard]] bool changesStyles() const { return m_plan.seed % 4 == 0; }
    [[nodiscard]] std::string bytes() const { return m_window->session()->drawing().bytes(); }
    [[nodiscard]] ChangeLog& changes() const {
        return m_window->session()->database().core().changes();
    }

    TimedApplication& m_application;
    const RoundPlan& m_plan;
    const std::filesystem::path m_copy = std::filesystem::temp_directory_path() / "round.dxf";
    ModuleLoader m_modules;
    std::unique_ptr<MainWindow> m_window;
    std::optional<RandomUser> m_user;
    QEventLoop m_loop;
    Phase m_phase = nullptr;
    RoundResult m_result;
    std::map<std::size_t, std::string> m_states; // by the lines of the history until then
    std::string m_original;
    std::string m_reached;
    std::string m_lastAct;
    int m_nextCheck = kEventsBetweenChecks;
    int m_escapes = 0;
    std::size_t m_depth = 0;
};

} // namespace

RoundResult playRound(TimedApplication& application, const RoundPlan& plan) {
    return Round(application, plan).play();
}

} // namespace orvex::testing
