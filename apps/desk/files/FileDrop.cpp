#include "FileDrop.h"

#include "DrawingOpener.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace orvex {

namespace {

// Empty for anything but one file of this machine.
QString fileIn(const QMimeData& dragged) {
    const QList<QUrl> urls = dragged.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

FileDrop::FileDrop(QWidget& window, const DrawingOpener& opener)
    : QObject(&window), m_opener(opener) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) {
        return false;
    }
    auto& drag = static_cast<QDropEvent&>(*event);
    // At the drop, too: where it came from may be gone by then.
    const QString path = fileIn(*drag.mimeData());
    if (path.isEmpty() || m_opener.isOpening()) {
        return false;
    }
    drag.acceptProposedAction();
    if (event->type() == QEvent::Drop) {
        // It waits for the end of this, and a question may be asked first.
        QMetaObject::invokeMethod(
            this, [this, path] { emit dropped(path); }, Qt::QueuedConnection);
    }
    return true;
}

} // namespace orvex
