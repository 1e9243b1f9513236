#pragma once

#include "ToolBar.h"

#include <QMainWindow>

#include <functional>

class QAction;
class QMenu;
class QToolBar;

namespace orvex {

// The menu bar and the tool bars of a window, made of the tables of actions and tools.
struct DeskMenus {
    // Called when the user chooses an entry.
    using Starter = std::function<void(const DeskAct&)>;
    DeskMenus(QMainWindow& window, const Starter& start);

    QMenu* recent = nullptr;
    QMenu* styles = nullptr; // of the drawing, to select by
    QMenu* layers = nullptr;
    QMenu* view = nullptr;
    QToolBar* tools = nullptr;
    ToolBar editTools;
};

} // namespace orvex
