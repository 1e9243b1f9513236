#pragma once

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTableWidget>

#include <string>
#include <vector>

namespace orvex::testing {

// Parts of a compound widget, which looks after them.
inline bool isPartOfAnother(const QWidget& widget) {
    const QWidget* const parent = widget.parentWidget();
    return qobject_cast<const QAbstractScrollArea*>(parent) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(parent) != nullptr ||
           qobject_cast<const QComboBox*>(parent) != nullptr ||
           qobject_cast<const QLineEdit*>(parent) != nullptr;
}

inline std::string nameOf(const QWidget& widget) {
    return widget.objectName().isEmpty() ? widget.metaObject()->className()
                                         : widget.objectName().toStdString();
}

// What is scrolled may be larger than what is seen of it.
inline bool isScrolled(const QWidget& widget) {
    const QWidget* const viewport = widget.parentWidget();
    return viewport != nullptr &&
           qobject_cast<const QAbstractScrollArea*>(viewport->parentWidget()) != nullptr;
}

// The widest text of the choices, with its picture, compared with the room for it.
inline bool isCut(const QComboBox& combo) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const QRect room = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                     QStyle::SC_ComboBoxEditField, &combo);
    constexpr int kMargins = 2; // left and right of the text, as styles draw it
    const int picture =
        combo.itemIcon(combo.currentIndex()).isNull() ? 0 : combo.iconSize().width() + kMargins;
    return combo.fontMetrics().height() > room.height() ||
           combo.fontMetrics().horizontalAdvance(combo.currentText()) + picture + kMargins >
               room.width();
}

inline bool isCut(const QTableWidget& table) {
    for (int column = 0; column < table.columnCount(); ++column) {
        // One of another class is reached through its base, where sizes are public.
        const QAbstractItemView& view = table;
        const int headed = table.horizontalHeader()->sectionSizeHint(column);
        int wanted = headed;
        for (int row = 0; row < table.rowCount(); ++row) {
            const QModelIndex cell = table.model()->index(row, column);
            const QSize size = view.sizeHintForIndex(cell);
            if (size.height() > table.rowHeight(row)) {
                return true;
            }
            wanted = std::max(wanted, size.width());
        }
        if (wanted > table.columnWidth(column)) {
            return true;
        }
    }
    return false;
}

// A caption that is shown in part only. One that shortens itself says so by its size policy.
inline bool isCut(const QWidget& widget) {
    if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
        return isCut(*combo);
    }
    if (const auto* const table = qobject_cast<const QTableWidget*>(&widget)) {
        return isCut(*table);
    }
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        const QSize wanted = label->minimumSizeHint();
        const bool isShort = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        return label->wordWrap() ? label->height() < label->heightForWidth(label->width())
                                 : label->height() < wanted.height() ||
                                       (!isShort && label->width() < wanted.width());
    }
    if (const auto* const line = qobject_cast<const QLineEdit*>(&widget)) {
        constexpr int kCursor = 2;
        const int margins = line->sizeHint().height() - line->fontMetrics().height();
        const bool isShort = line->maximumWidth() == QWIDGETSIZE_MAX; // its text may be any
        return line->height() < line->minimumSizeHint().height() ||
               (!isShort &&
                line->fontMetrics().horizontalAdvance(line->text()) + margins + kCursor >
                    line->width());
    }
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
        const QSize wanted = button->minimumSizeHint();
        return !button->text().isEmpty() &&
               (button->width() < wanted.width() || button->height() < wanted.height());
    }
    if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) {
        return group->width() < group->minimumSizeHint().width();
    }
    return false;
}

// What can't be read in a window that is shown: "a over b" for siblings that overlap, "a out of b"
// for what its parent cuts off, "a" for a caption without enough room.
inline std::vector<std::string> layoutFaults(const QWidget& window) {
    std::vector<std::string> faults;
    QWidgetList shown;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->window() == &window && !isPartOfAnother(*widget)) {
            shown.append(widget);
        }
    }
    for (int index = 0; index < shown.size(); ++index) {
        const QWidget& widget = *shown[index];
        if (isCut(widget)) {
            faults.push_back(nameOf(widget));
        }
        if (!isScrolled(widget) && !widget.parentWidget()->rect().contains(widget.geometry())) {
            faults.push_back(nameOf(widget) + " out of " + nameOf(*widget.parentWidget()));
        }
        for (int other = 0; other < index; ++other) {
            if (shown[other]->parentWidget() == widget.parentWidget() &&
                shown[other]->geometry().intersects(widget.geometry())) {
                faults.push_back(nameOf(widget) + " over " + nameOf(*shown[other]));
            }
        }
    }
    return faults;
}

} // namespace orvex::testing
