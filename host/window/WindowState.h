#pragma once

#include "CWnd.h"

#include <QMetaObject>
#include <QPointer>
#include <QWidget>

#include <map>
#include <memory>

namespace orvex {

// What stands behind a window object. Others refer to it weakly, so that objects and widgets may
// go in any order.
struct WindowState {
    struct Item {
        QPointer<QWidget> widget;
        std::unique_ptr<CWnd> object;
        QMetaObject::Connection clicks;
    };

    CWnd* owner = nullptr; // null when the object is gone
    QPointer<QWidget> window;
    bool deletesView = false;
    bool tied = false; // FromHandle finds it

    // Of a control the dialog that registered it, of a dialog what it was constructed with.
    std::weak_ptr<WindowState> parent;
    int number = 0;

    std::map<int, Item> items;
    bool exchanging = false;

    // Of a dialog.
    bool running = false;
    bool ended = false;
    int result = 0;

    static const std::shared_ptr<WindowState>& of(const CWnd& window) { return window.m_state; }
    // The state that has this view, tied or not; null for none.
    static WindowState* withView(const QWidget* view);

    [[nodiscard]] QWidget* widgetOf(int id) const;
    // The object under a number, made when it is asked for first.
    CWnd& itemObject(int id);
};

// All states with a view.
void rememberState(WindowState& state);
void forgetState(const WindowState& state);

// Binds a control object to the widget under a number. False when there is none.
bool bindControl(CWnd& control, const CWnd* dialog, int number);

// What every widget needs before a logic uses it.
void prepareWidget(QWidget& widget);

// Computes all layouts of a view that isn't shown yet.
void activateLayouts(QWidget& view);

} // namespace orvex
