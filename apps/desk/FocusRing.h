#pragma once

#include <QList>
#include <QObject>

#include <vector>

class QAction;
class QMainWindow;
class QToolBar;
class QWidget;

namespace orvex {

class Canvas;
class CommandLine;

// The way around the window without a mouse: from the command line to the canvas, the panels that
// are open, the drawing bar, and back.
class FocusRing final : public QObject {
    Q_OBJECT

public:
    // All outlive it.
    FocusRing(QMainWindow& window, Canvas& canvas, CommandLine& commandLine, QToolBar& drawBar);

    [[nodiscard]] const QList<QAction*>& actions() const { return m_actions; }

private:
    void addAction(const char* name, const QString& text, const QString& help,
                   const QKeySequence& key, int step);
    void go(int step);
    [[nodiscard]] std::vector<QWidget*> areas() const;
    bool enter(QWidget& area);

    QMainWindow& m_window;
    Canvas& m_canvas;
    CommandLine& m_commandLine;
    QToolBar& m_drawBar;
    QList<QAction*> m_actions;
};

} // namespace orvex
