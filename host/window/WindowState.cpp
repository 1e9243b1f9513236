#include "WindowState.h"

#include "ListClicks.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QResizeEvent>
#include <QTableWidget>

#include <algorithm>
#include <vector>

namespace orvex {

namespace {

std::vector<WindowState*>& states() {
    static std::vector<WindowState*> all;
    return all;
}

void prepareTable(QTableWidget& table) {
    // The rows are the logic's: neither the user nor Qt changes texts or order.
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setSortingEnabled(false);
    table.setCornerButtonEnabled(false);
    table.horizontalHeader()->setSectionsClickable(false);
    table.horizontalHeader()->setHighlightSections(false);
}

} // namespace

WindowState* WindowState::withView(const QWidget* view) {
    if (view == nullptr) {
        return nullptr;
    }
    const auto found = std::find_if(states().begin(), states().end(), [view](const auto* state) {
        return state->window.data() == view;
    });
    return found != states().end() ? *found : nullptr;
}

QWidget* WindowState::widgetOf(int id) const {
    const auto found = items.find(id);
    return found != items.end() ? found->second.widget.data() : nullptr;
}

CWnd& WindowState::itemObject(int id) {
    Item& item = items[id];
    if (!item.object) {
        item.object = std::make_unique<CWnd>();
        WindowState& inner = *of(*item.object);
        inner.number = id;
        inner.window = item.widget;
        if (owner != nullptr) {
            inner.parent = of(*owner);
        }
    }
    return *item.object;
}

void rememberState(WindowState& state) {
    forgetState(state);
    states().push_back(&state);
}

void forgetState(const WindowState& state) {
    states().erase(std::remove(states().begin(), states().end(), &state), states().end());
}

bool bindControl(CWnd& control, const CWnd* dialog, int number) {
    if (dialog == nullptr || dialog == &control) {
        return false;
    }
    const auto& outer = WindowState::of(*dialog);
    QWidget* const widget = outer->widgetOf(number);
    if (widget == nullptr) {
        return false;
    }
    WindowState& inner = *WindowState::of(control);
    if (inner.window == widget && inner.number == number && inner.parent.lock() == outer) {
        return true;
    }
    inner.window = widget;
    inner.number = number;
    inner.parent = outer;
    control.PreSubclassWindow();
    return true;
}

void prepareWidget(QWidget& widget) {
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
        // A label guesses otherwise, and takes what comes from a drawing for markup.
        label->setTextFormat(Qt::PlainText);
    } else if (auto* table = qobject_cast<QTableWidget*>(&widget)) {
        prepareTable(*table);
        ListClicks::attach(*table);
    } else if (auto* list = qobject_cast<QListWidget*>(&widget)) {
        list->setSortingEnabled(false);
        ListClicks::attach(*list);
    }
}

void activateLayouts(QWidget& view) {
    view.ensurePolished();
    if (QLayout* const layout = view.layout()) {
        layout->activate();
    }
    // Hidden widgets learn their new size when they are shown, which is too late for what
    // stands inside them.
    if (view.testAttribute(Qt::WA_PendingResizeEvent)) {
        QResizeEvent resized(view.size(), QSize());
        QCoreApplication::sendEvent(&view, &resized);
    }
    for (QObject* const child : view.children()) {
        auto* const inner = qobject_cast<QWidget*>(child);
        if (inner != nullptr && !inner->isWindow()) {
            activateLayouts(*inner);
        }
    }
}

} // namespace orvex
