#pragma once

#include <QObject>
#include <QWidget>

#include <string>

namespace orvex {

class CommandRunner;
class DeskSettings;
class ScriptSource;
class Session;

// Scripts in the window: writes what was done as one, and plays the lines of one in the window's
// drawing as orvex-batch does: each command is a step of its own, none may show a dialog, and the
// first failure ends it with the line; what was done stays.
class PlayScript final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    PlayScript(QWidget& window, CommandRunner& runner, DeskSettings& settings)
        : QObject(&window), m_window(window), m_runner(runner), m_settings(settings) {}

    // At the command prompt only; else it says so.
    void askAndPlay();
    void play(const QString& path);
    // Writes what was done in a drawing of this name since it was opened.
    void askAndSave(Session& session, const QString& drawing);
    void save(Session& session, const QString& drawing, const QString& path);
    // After the command that runs.
    void stop() { m_isStopped = true; }
    [[nodiscard]] bool isPlaying() const { return m_isPlaying; }

signals:
    void printed(const QString& line);
    void complained(const QString& line);

private:
    void playFile(Session& session, const QString& path);
    void playText(Session& session, const std::string& text, const QString& path);
    void playCommands(Session& session, ScriptSource& script, const QString& path);

    QWidget& m_window;
    CommandRunner& m_runner;
    DeskSettings& m_settings;
    bool m_isPlaying = false;
    bool m_isStopped = false;
};

} // namespace orvex
