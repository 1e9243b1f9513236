#include "CommandDock.h"

#include "CommandLine.h"

#include <QEvent>
#include <QMainWindow>

namespace orvex {

namespace {

constexpr int kFirstHeight = 170; // pixels

} // namespace

CommandDock::CommandDock(QMainWindow& window, CommandLine& commandLine)
    : QDockWidget(tr("Command line"), &window) {
    setObjectName(QStringLiteral("commandDock"));
    setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable |
                QDockWidget::DockWidgetClosable);
    setAllowedAreas(Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea);
    setWidget(&commandLine);
    window.addDockWidget(Qt::BottomDockWidgetArea, this);
    window.resizeDocks({this}, {kFirstHeight}, Qt::Vertical);
    window.installEventFilter(this);
}

// Where the window manager lets it, the window would come to lie over it.
bool CommandDock::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate && watched == parent() && isFloating() &&
        isVisible()) {
        raise();
    }
    return QDockWidget::eventFilter(watched, event);
}

} // namespace orvex
