#pragma once

#include "deskActions.h"

#include <QMainWindow>

#include <functional>

class QAction;
class QMenu;
class QToolBar;

namespace orvex {

// The menu bar and the tool bar of a window, made of the table of actions.
struct DeskMenus {
    // Called with an action's row when the user wants it.
    using Starter = std::function<void(const DeskActionRow&)>;
    DeskMenus(QMainWindow& window, const Starter& start);

    QMenu* recent = nullptr;
    QMenu* view = nullptr;
    QToolBar* tools = nullptr;
};

} // namespace orvex
