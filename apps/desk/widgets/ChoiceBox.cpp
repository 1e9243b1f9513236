#include "ChoiceBox.h"

#include <QKeyEvent>
#include <QStandardItemModel>
#include <QWheelEvent>

namespace orvex {

namespace {

constexpr int kLongestName = 28; // characters; a name may be much longer

QString shortened(const QString& text) {
    return text.size() > kLongestName ? text.left(kLongestName - 1) + QChar(0x2026) : text;
}

} // namespace

ChoiceBox::ChoiceBox(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::TabFocus); // a click leaves it where one types
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(this, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QString value = itemData(index).toString();
        showCurrent(m_current);
        emit chosen(value);
    });
}

void ChoiceBox::addChoice(const Choice& choice) {
    addItem(choice.icon, shortened(choice.text), choice.value);
    auto* const item = static_cast<QStandardItemModel*>(model())->item(count() - 1);
    item->setEnabled(choice.isEnabled);
    item->setToolTip(choice.hint);
}

void ChoiceBox::showCurrent(const Choice& choice) {
    m_current = choice;
    clear();
    addChoice(choice);
    setCurrentIndex(0);
}

void ChoiceBox::showPopup() {
    clear();
    for (const Choice& choice : m_choices()) {
        addChoice(choice);
    }
    setCurrentIndex(findData(m_current.value));
    QComboBox::showPopup();
}

void ChoiceBox::hidePopup() {
    QComboBox::hidePopup();
    // Also after a popup that was closed without a choice; one that was made is told later.
    QMetaObject::invokeMethod(
        this, [this] { showCurrent(m_current); }, Qt::QueuedConnection);
}

// The list opens by keys as by a click; what else is typed goes to the window.
void ChoiceBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_F4:
        showPopup();
        break;
    case Qt::Key_Escape:
        emit left();
        break;
    default:
        event->ignore();
    }
}

void ChoiceBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace orvex
