#pragma once

#include "JoinReport.h"

#include <QObject>

class QAction;
class QDockWidget;
class QMainWindow;

namespace orvex {

class Canvas;
class CommandRunner;
class DeskPrompts;
class JoinPanel;
class Session;

// MLJOIN in the window: a panel beside the canvas that answers its questions, and marks where walls
// will be joined and where they were left.
class JoinDesk final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    JoinDesk(QMainWindow& window, Canvas& canvas, CommandRunner& runner, DeskPrompts& prompts);

    // A new session, which has nothing to show yet.
    void setSession(Session& session);
    [[nodiscard]] QAction* toggleAction() const;

signals:
    void left(); // the panel closed, and had the focus

private:
    void open();
    void close();
    void showQuestion();
    void take(const JoinReport& report);
    void commandStarted(const QString& name);
    void commandEnded();
    void lookAt(int left);

    Canvas& m_canvas;
    DeskPrompts& m_prompts;
    JoinPanel* m_panel;
    QDockWidget* m_dock;
    Session* m_session = nullptr;
    bool m_isJoining = false;
    bool m_isOpener = false;  // the command, of the panel
    bool m_isPlayed = false;  // what was reported
    bool m_isPreview = false; // what the marks are of
};

} // namespace orvex
