#pragma once

#include <QDockWidget>

class QMainWindow;

namespace orvex {

class CommandLine;

// Holds the command line at an edge of the window, or floating above it.
class CommandDock final : public QDockWidget {
    Q_OBJECT

public:
    CommandDock(QMainWindow& window, CommandLine& commandLine);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace orvex
