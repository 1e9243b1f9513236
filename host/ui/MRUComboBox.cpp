#include "MRUComboBox.h"

#include <QWheelEvent>

#include <utility>

namespace VOUI {

MRUComboBox::MRUComboBox(QWidget* parent) : QComboBox(parent) {
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &MRUComboBox::choose);
}

void MRUComboBox::setChooser(Chooser chooser) {
    m_chooser = std::move(chooser);
}

void MRUComboBox::showPopup() {
    m_before = currentIndex();
    QComboBox::showPopup();
}

void MRUComboBox::keyPressEvent(QKeyEvent* event) {
    m_before = currentIndex();
    QComboBox::keyPressEvent(event);
}

void MRUComboBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void MRUComboBox::choose(int index) {
    if (!m_chooser || m_chooser(index)) {
        emit selChanged();
    }
}

} // namespace VOUI
