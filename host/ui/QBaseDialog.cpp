#include "QBaseDialog.h"

#include "fitToScreen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QWindow>

namespace {

constexpr QSize kFrame(10, 40); // pixels of a window's borders and title

QPushButton* defaultButton(const QDialog& dialog) {
    for (auto* const button : dialog.findChildren<QPushButton*>()) {
        if (button->isDefault() && button->isEnabled() && button->isVisibleTo(&dialog)) {
            return button;
        }
    }
    return nullptr;
}

// The window a dialog without a parent opens over; null when it is alone.
QWidget* windowBelow(const QDialog& dialog) {
    QWidget* const active = QApplication::activeWindow();
    if (active != nullptr && active != &dialog) {
        return active;
    }
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        const bool ordinary =
            window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
        if (window != &dialog && ordinary && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

QBaseDialog::QBaseDialog(QWidget* parent) : QDialog(parent) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void QBaseDialog::OnOK() {
    if (QPushButton* const button = defaultButton(*this)) {
        button->click();
    }
}

void QBaseDialog::OnCancel() {
    QDialog::reject();
}

// Qt's way out of a dialog, by its close control too.
void QBaseDialog::reject() {
    OnCancel();
}

void QBaseDialog::setVisible(bool visible) {
    if (visible && !isVisible()) {
        const QWidget* const below = parentWidget() == nullptr ? windowBelow(*this) : nullptr;
        const QScreen& target = *(below != nullptr ? below : this)->screen();
        orvex::fitInto(*this, target.availableSize() - kFrame);
    }
    QDialog::setVisible(visible);
}

void QBaseDialog::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        OnCancel();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A key held down since before the dialog opened confirms nothing.
        if (!event->isAutoRepeat()) {
            enter();
        }
        break;
    default:
        QDialog::keyPressEvent(event);
        break;
    }
}

// By the default button the logic learns of it as of any Enter.
void QBaseDialog::enter() {
    QPushButton* const standard = defaultButton(*this);
    auto* const focused = qobject_cast<QPushButton*>(focusWidget());
    if (focused != nullptr && focused != standard && focused->isEnabled()) {
        focused->click();
    } else if (standard != nullptr) {
        OnOK();
    }
}

// Over the window that was active, unless it has a place.
void QBaseDialog::place(QWidget& below, bool isPlaced) {
    if (windowHandle() != nullptr) {
        windowHandle()->setTransientParent(below.windowHandle());
    }
    if (!isPlaced) {
        adjustPosition(&below);
        setAttribute(Qt::WA_Moved, false); // nobody asked for this very place
    }
}

void QBaseDialog::showEvent(QShowEvent* event) {
    const bool isPlaced = testAttribute(Qt::WA_Moved);
    QDialog::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    if (QWidget* const below = parentWidget() == nullptr ? windowBelow(*this) : nullptr) {
        place(*below, isPlaced);
    }
    emit shown();
}
