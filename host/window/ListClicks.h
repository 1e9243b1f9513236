#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>

#include <functional>

class QAbstractItemView;
class QListWidget;
class QMouseEvent;
class QTableWidget;

namespace orvex {

// Makes a list or table emit itemClicked for every change of the selection by the user, once per
// change: a view's slot is connected to that signal alone, yet Qt emits it for clicks on items
// only, and states that follow the selection would be wrong after a key. Belongs to the widget.
class ListClicks : public QObject {
public:
    // Does nothing the second time.
    static void attach(QListWidget& list);
    static void attach(QTableWidget& table);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ListClicks(QAbstractItemView& view, std::function<void()> emitClick);

    void selectionChanged();
    void press(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    bool handleKey(QEvent& event);
    void settle();

    QAbstractItemView& m_view;
    std::function<void()> m_emitClick;
    QPersistentModelIndex m_pressed;
    bool m_mouseDown = false;
    bool m_inKey = false;
    bool m_changed = false; // and not notified yet
};

} // namespace orvex
