#include "MRUComboBox.h"

#include <QAbstractItemView>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace VOUI {

namespace {

constexpr int kWidestList = 400; // pixels

} // namespace

MRUComboBox::MRUComboBox(QWidget* parent) : QComboBox(parent) {
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &MRUComboBox::choose);
}

void MRUComboBox::setChooser(Chooser chooser) {
    m_chooser = std::move(chooser);
}

void MRUComboBox::showPopup() {
    m_before = currentIndex();
    // Names may be longer than the box is wide.
    const int names = view()->sizeHintForColumn(modelColumn());
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    view()->setMinimumWidth(std::min(names + scrollBar, kWidestList));
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
