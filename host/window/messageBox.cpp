#include "CWnd.h"

#include "qtText.h"

#include <QApplication>
#include <QMessageBox>

namespace {

const wchar_t* const kProgram = L"ORVEX";

constexpr unsigned kButtonBits = 0xF;
constexpr unsigned kIconBits = 0xF0;

QMessageBox::StandardButtons buttonsOf(unsigned flags) {
    switch (flags & kButtonBits) {
    case 1:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case 3:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case 4:
        return QMessageBox::Yes | QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(unsigned flags) {
    switch (flags & kIconBits) {
    case 16:
        return QMessageBox::Critical;
    case 32:
        return QMessageBox::Question;
    case 48:
        return QMessageBox::Warning;
    case 64:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

int answerOf(int button) {
    switch (button) {
    case QMessageBox::Ok:
        return 1;
    case QMessageBox::Yes:
        return 6;
    case QMessageBox::No:
        return 7;
    default:
        return 2;
    }
}

} // namespace

int CWnd::MessageBoxW(const wchar_t* text, const wchar_t* caption, unsigned flags) {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        return 0;
    }
    QWidget* const widget = GetSafeHwnd();
    QWidget* const parent =
        widget != nullptr && widget->isVisible() ? widget->window() : QApplication::activeWindow();
    QMessageBox box(parent);
    // The text holds names out of drawings and files.
    box.setTextFormat(Qt::PlainText);
    box.setText(orvex::toQt(text));
    box.setWindowTitle(orvex::toQt(caption != nullptr ? caption : kProgram));
    box.setIcon(iconOf(flags));
    box.setStandardButtons(buttonsOf(flags));
    return answerOf(box.exec());
}
