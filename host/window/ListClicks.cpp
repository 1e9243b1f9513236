#include "ListClicks.h"

#include "SilentScope.h"

#include <QItemSelectionModel>
#include <QListWidget>
#include <QMouseEvent>
#include <QTableWidget>

#include <utility>

namespace orvex {

namespace {

const char* const kName = "orvexListClicks";

bool isAttached(const QObject& view) {
    return view.findChild<QObject*>(kName, Qt::FindDirectChildrenOnly) != nullptr;
}

} // namespace

void ListClicks::attach(QListWidget& list) {
    if (!isAttached(list)) {
        auto* const clicks =
            new ListClicks(list, [&list] { emit list.itemClicked(list.selectedItems().value(0)); });
        connect(&list, &QListWidget::itemClicked, clicks, [clicks] { clicks->m_changed = false; });
    }
}

void ListClicks::attach(QTableWidget& table) {
    if (!isAttached(table)) {
        auto* const clicks = new ListClicks(
            table, [&table] { emit table.itemClicked(table.selectedItems().value(0)); });
        connect(&table, &QTableWidget::itemClicked, clicks,
                [clicks] { clicks->m_changed = false; });
    }
}

ListClicks::ListClicks(QAbstractItemView& view, std::function<void()> emitClick)
    : QObject(&view), m_view(view), m_emitClick(std::move(emitClick)) {
    setObjectName(kName);
    view.installEventFilter(this);
    view.viewport()->installEventFilter(this);
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { selectionChanged(); });
}

bool ListClicks::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &m_view) {
        return event->type() == QEvent::KeyPress && handleKey(*event);
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        press(static_cast<const QMouseEvent&>(*event));
        break;
    case QEvent::MouseButtonRelease:
        release(static_cast<const QMouseEvent&>(*event));
        break;
    default:
        break;
    }
    return false;
}

void ListClicks::selectionChanged() {
    if (SilentScope::isActive()) {
        return;
    }
    m_changed = true;
    // Under a key or button the change is notified when the view has settled, since a selection
    // changes before the current item does.
    if (!m_inKey && !m_mouseDown) {
        settle();
    }
}

void ListClicks::press(const QMouseEvent& event) {
    m_mouseDown = true;
    m_pressed = m_view.indexAt(event.pos());
    if (!m_pressed.isValid() && event.button() == Qt::LeftButton) {
        m_view.clearSelection();
    }
}

void ListClicks::release(const QMouseEvent& event) {
    m_mouseDown = false;
    // This one Qt itself reports as a click.
    const bool isClick = event.button() == Qt::LeftButton && m_pressed.isValid() &&
                         m_pressed == m_view.indexAt(event.pos());
    if (!isClick) {
        settle();
    }
}

bool ListClicks::handleKey(QEvent& event) {
    if (m_inKey) {
        return false;
    }
    const QPointer<ListClicks> alive(this);
    m_inKey = true;
    // A filter sees an event before the view does; to see what came of it, the view is asked here.
    static_cast<QObject&>(m_view).event(&event);
    if (alive) {
        m_inKey = false;
        settle();
    }
    return true;
}

void ListClicks::settle() {
    if (std::exchange(m_changed, false)) {
        m_emitClick();
    }
}

} // namespace orvex
