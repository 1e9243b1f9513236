#include "HelpDesk.h"

#include "CommandRunner.h"
#include "HelpWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMessageBox>

namespace orvex {

HelpDesk::HelpDesk(QMainWindow& window, const CommandRunner& runner)
    : QObject(&window), m_window(window), m_runner(runner), m_help(new HelpWindow(&window)) {
    qApp->installEventFilter(this);
}

void HelpDesk::show() {
    m_help->showTopic(m_runner.running());
}

void HelpDesk::about() {
    QMessageBox box(QMessageBox::NoIcon, tr("About Orvex"),
                    tr("Orvex %1").arg(QLatin1String(ORVEX_VERSION)), QMessageBox::Ok, &m_window);
    box.setIconPixmap(m_window.windowIcon().pixmap(64, 64));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        tr("Opens real drawings and edits their multilines: walls, roads, pipes.\n"
           "What isn't edited is saved byte for byte."));
    box.exec();
}

bool HelpDesk::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress || static_cast<const QKeyEvent*>(event)->key() != Qt::Key_F1) {
        return QObject::eventFilter(watched, event);
    }
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || QApplication::activePopupWidget() != nullptr) {
        return false; // the window has the key for itself
    }
    auto* help = dialog->findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (help == nullptr) {
        help = new HelpWindow(dialog);
    }
    help->showTopic(m_runner.running());
    return true;
}

} // namespace orvex
