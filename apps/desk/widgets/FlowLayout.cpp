#include "FlowLayout.h"

#include <QWidget>

#include <algorithm>

namespace orvex {

FlowLayout::FlowLayout(QWidget* parent, int spacing) : QLayout(parent) {
    setSpacing(spacing);
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item) {
    m_items.emplace_back(item);
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (itemAt(index) == nullptr) {
        return nullptr;
    }
    QLayoutItem* const item = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

int FlowLayout::heightForWidth(int width) const {
    return arrange({0, 0, width, 0}, false);
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const auto& item : m_items) {
        size = size.expandedTo(item->minimumSize());
    }
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& place) {
    QLayout::setGeometry(place);
    arrange(place, true);
}

int FlowLayout::arrange(const QRect& place, bool moves) const {
    const QMargins margins = contentsMargins();
    const QRect inner = place.marginsRemoved(margins);
    QPoint at = inner.topLeft();
    int lineHeight = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty()) {
            continue; // hidden
        }
        const QSize size = item->sizeHint();
        if (at.x() > inner.left() && at.x() + size.width() > inner.right() + 1) {
            at = {inner.left(), at.y() + lineHeight + spacing()};
            lineHeight = 0;
        }
        if (moves) {
            item->setGeometry({at, size});
        }
        at.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return at.y() + lineHeight - place.top() + margins.bottom();
}

} // namespace orvex
