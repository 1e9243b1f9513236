#include "roomForText.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyleOptionComboBox>
#include <QTableWidget>

#include <algorithm>

namespace mledit {

namespace {

constexpr int kLineMargin = 1;            // pixels above and below the text of a row
constexpr const char* kNumber = "000.00"; // what a field of a fixed width has to show
constexpr int kTightSpacing = 2;
constexpr int kFrame = 30; // pixels of a window's title and borders

// A size that isn't set is the widget's own business.
void raise(QWidget& widget, const QSize& needed) {
    const QSize least = widget.minimumSize();
    widget.setMinimumSize(least.width() > 0 ? std::max(least.width(), needed.width()) : 0,
                          least.height() > 0 ? std::max(least.height(), needed.height()) : 0);
    widget.setMaximumSize(widget.maximumSize().expandedTo(needed));
}

void raiseField(QLineEdit& field) {
    const int frame = field.sizeHint().height() - field.fontMetrics().height();
    const int needed = field.fontMetrics().horizontalAdvance(QLatin1String(kNumber)) + 2 * frame;
    if (field.maximumWidth() < needed) {
        field.setFixedWidth(needed);
    }
}

// One that wraps gets by with any width.
bool hasCaption(const QWidget& widget) {
    const auto* const button = qobject_cast<const QPushButton*>(&widget);
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    return (button != nullptr && !button->text().isEmpty()) ||
           (label != nullptr && !label->wordWrap()) ||
           qobject_cast<const QGroupBox*>(&widget) != nullptr;
}

void raiseRows(QTableWidget& table) {
    QHeaderView& rows = *table.verticalHeader();
    rows.setDefaultSectionSize(
        std::max(rows.defaultSectionSize(), table.fontMetrics().height() + 2 * kLineMargin));
}

} // namespace

void makeRoomForText(QWidget& dialog) {
    const QWidgetList widgets = dialog.findChildren<QWidget*>();
    // What a box needs depends on what is in it, and that comes after it.
    std::for_each(widgets.rbegin(), widgets.rend(), [](QWidget* widget) {
        if (hasCaption(*widget)) {
            raise(*widget, widget->minimumSizeHint());
        } else if (auto* const field = qobject_cast<QLineEdit*>(widget)) {
            raiseField(*field);
        } else if (auto* const table = qobject_cast<QTableWidget*>(widget)) {
            raiseRows(*table);
        }
    });
    QLayout& layout = *dialog.layout();
    if (layout.totalMinimumSize().height() > dialog.screen()->availableSize().height() - kFrame) {
        for (QLayout* const each : dialog.findChildren<QLayout*>()) {
            each->setSpacing(std::min(each->spacing(), kTightSpacing));
        }
    }
    dialog.setMaximumSize(dialog.maximumSize().expandedTo(layout.totalMinimumSize()));
    const int height = layout.hasHeightForWidth() ? layout.heightForWidth(dialog.width()) : 0;
    dialog.resize(dialog.size().expandedTo({0, height}).boundedTo(dialog.maximumSize()));
}

void makeRoomForChoice(QComboBox& combo, const QString& text, int pictureWidth) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    constexpr int kMargins = 8; // left and right of picture and text, as styles draw them
    const QFontMetrics metrics = combo.fontMetrics();
    const QSize content(pictureWidth + metrics.horizontalAdvance(text) + kMargins,
                        metrics.height());
    const QSize needed =
        combo.style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, &combo);
    combo.setMinimumWidth(std::max(combo.minimumWidth(), needed.width()));
}

} // namespace mledit
