#pragma once

#include <QObject>
#include <QStringList>

#include <cstdint>
#include <functional>

namespace orvex {

class DeskPrompts;
class Session;

// Runs what the user starts, one at a time: commands, and what has to wait until none runs. What is
// started while something runs cancels that first. All starts from the event loop, never from
// within the widget that was clicked.
class CommandRunner final : public QObject {
    Q_OBJECT

public:
    explicit CommandRunner(DeskPrompts& prompts) : m_prompts(prompts) {}

    // What Enter repeats after a command: that, or still the one before.
    enum class Repeat : std::uint8_t { itself, before };

    // Where commands run; not owned. Null: they don't.
    void setSession(Session* session) { m_session = session; }

    // A command's name, and what is typed at its first prompts.
    void start(const QString& name, const QStringList& answers = {},
               Repeat repeat = Repeat::itself);
    // The last command once more, or what it said is to be repeated.
    void repeat();
    // What is to be repeated after the command that runs.
    void repeatAs(const QString& name, const QStringList& answers) { m_running = {name, answers}; }
    // Something else that mustn't run during a command. Of what is waiting the latest wins.
    void post(std::function<void()> task);
    // The same for a task that runs commands of the session.
    void postCommands(std::function<void(Session&)> task);

    [[nodiscard]] bool isBusy() const { return m_working; }
    // Something was started that waits until what runs has ended.
    [[nodiscard]] bool isAwaited() const { return static_cast<bool>(m_task); }
    // The command that runs: after what was answered at its first prompts its name, in capitals.
    [[nodiscard]] QStringList running() const {
        return m_running.name.isEmpty() ? QStringList()
                                        : m_running.answers + QStringList{m_running.name.toUpper()};
    }

signals:
    void commandStarted(const QString& name);
    void commandEnded();

private:
    void work();
    void run(const QString& name, const QStringList& answers, Repeat repeat);
    void waitForPickIndex();

    DeskPrompts& m_prompts;
    Session* m_session = nullptr;
    struct Repeatable {
        QString name;
        QStringList answers;
    };
    Repeatable m_running;
    Repeatable m_last;
    std::function<void()> m_task;
    bool m_working = false;
};

} // namespace orvex
