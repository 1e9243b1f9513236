#pragma once

#include "deskActions.h"

#include <QMainWindow>

#include <functional>

class QMenu;
class QToolBar;

namespace orvex {

// The twelve multiline tools as actions with pictures and hints: a tool bar of their own, and a
// menu.
struct ToolBar {
    // `start` is called when the user chooses one.
    ToolBar(QMainWindow& window, const std::function<void(const DeskAct&)>& start);

    QToolBar* bar = nullptr;
    QMenu* menu = nullptr;
};

} // namespace orvex
