#include "FocusRing.h"

#include "Canvas.h"
#include "CommandLine.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>

#include <algorithm>

namespace orvex {

namespace {

// The first in an area that Tab would come to; null when there is none.
QWidget* firstStop(QWidget& area) {
    QWidget* stop = area.nextInFocusChain();
    while (stop != &area) {
        const bool takesTab = (stop->focusPolicy() & Qt::TabFocus) != 0;
        if (takesTab && area.isAncestorOf(stop) && stop->isVisible() && stop->isEnabled()) {
            return stop;
        }
        stop = stop->nextInFocusChain();
    }
    return nullptr;
}

} // namespace

FocusRing::FocusRing(QMainWindow& window, Canvas& canvas, CommandLine& commandLine,
                     QToolBar& drawBar)
    : QObject(&window), m_window(window), m_canvas(canvas), m_commandLine(commandLine),
      m_drawBar(drawBar) {
    addAction("nextArea", tr("&Next Area"),
              tr("Go on to the canvas, where arrows move the cross, to panels and bars"),
              Qt::Key_F6, 1);
    addAction("previousArea", tr("Previo&us Area"),
              tr("Go back to the bars, panels, canvas or command line before"),
              QKeySequence(QStringLiteral("Shift+F6")), -1);
}

void FocusRing::addAction(const char* name, const QString& text, const QString& help,
                          const QKeySequence& key, int step) {
    auto* const action = new QAction(text, &m_window);
    action->setObjectName(QLatin1String(name));
    action->setStatusTip(help);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, [this, step] { go(step); });
    m_actions.append(action);
}

std::vector<QWidget*> FocusRing::areas() const {
    std::vector<QWidget*> all{&m_commandLine, &m_canvas};
    for (QDockWidget* const dock : m_window.findChildren<QDockWidget*>()) {
        if (dock->isVisible() && !dock->isAncestorOf(&m_commandLine)) {
            all.push_back(dock->widget());
        }
    }
    all.push_back(&m_drawBar);
    return all;
}

// What is in none of them counts as the command line, where keys go.
void FocusRing::go(int step) {
    const std::vector<QWidget*> all = areas();
    const QWidget* const focused = QApplication::focusWidget();
    const auto current = std::find_if(all.begin(), all.end(), [&](const QWidget* area) {
        return area == focused || area->isAncestorOf(focused);
    });
    const auto count = static_cast<int>(all.size());
    int at = current == all.end() ? 0 : static_cast<int>(current - all.begin());
    if (all[static_cast<std::size_t>(at)] == &m_canvas && !m_canvas.isCrossOn()) {
        at -= step; // clicked by the mouse: keys don't reach the cross yet
    }
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (enter(*all[static_cast<std::size_t>(at)])) {
            return;
        }
    }
}

bool FocusRing::enter(QWidget& area) {
    if (&area == &m_canvas) {
        m_canvas.startCross();
        return true;
    }
    QWidget* const stop = &area == &m_commandLine ? &area : firstStop(area);
    if (stop != nullptr) {
        stop->setFocus(Qt::TabFocusReason);
    }
    return stop != nullptr;
}

} // namespace orvex
