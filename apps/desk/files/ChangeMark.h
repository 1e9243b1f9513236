#pragma once

#include <QObject>
#include <QTimer>

class QMainWindow;

namespace orvex {

class CommandRunner;
class DeskDrawing;

// The title: the drawing's name, and a mark while it differs from its file. The mark comes and goes
// with the change, also where a dialog or a tool makes it in the middle of a command.
class ChangeMark final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    ChangeMark(QMainWindow& window, DeskDrawing& drawing, CommandRunner& runner);

    void show(); // after a command, an opening or a save
    void look(); // costs nothing unless something was edited

private:
    QMainWindow& m_window;
    DeskDrawing& m_drawing;
    QTimer m_timer; // while a command runs
};

} // namespace orvex
