#include "fitToScreen.h"

#include <QApplication>
#include <QDialog>
#include <QLayout>
#include <QPointer>
#include <QScrollArea>
#include <QStyle>

namespace orvex {

namespace {

// What the focus goes on to by a key is brought into sight. What has it first leaves the beginning
// where it can be read.
void followFocus(QScrollArea& scroll) {
    QObject::connect(qApp, &QApplication::focusChanged, &scroll,
                     [&scroll](const QWidget* before, QWidget* now) {
                         const QWidget& content = *scroll.widget();
                         if (content.isAncestorOf(before) && content.isAncestorOf(now)) {
                             scroll.ensureWidgetVisible(now);
                         }
                     });
}

} // namespace

void fitInto(QDialog& dialog, QSize room) {
    QLayout* const layout = dialog.layout();
    if (layout == nullptr) {
        return;
    }
    const QSize needed = layout->totalMinimumSize();
    if (needed.width() <= room.width() && needed.height() <= room.height()) {
        dialog.resize(dialog.size().boundedTo(room));
        return;
    }
    const QPointer<QWidget> focused = dialog.focusWidget();
    // A child from the beginning, so that the order of the focus stays.
    auto* const scroll = new QScrollArea(&dialog);
    auto* const content = new QWidget(scroll);
    content->setLayout(layout); // and so all that is in it
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setWidget(content);
    followFocus(*scroll);
    auto* const whole = new QVBoxLayout(&dialog);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);
    if (focused != nullptr) {
        focused->setFocus(); // which it lost by its move
    }
    const int bar = dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize wanted = dialog.size().expandedTo(needed) + QSize(bar, bar);
    dialog.setMinimumSize(0, 0);
    dialog.setMaximumSize(dialog.maximumSize().expandedTo(wanted));
    dialog.resize(wanted.boundedTo(room));
}

} // namespace orvex
