#include "KeyRouter.h"

#include "WindowState.h"
#include "withoutThrowing.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <array>
#include <utility>

namespace orvex {

namespace {

// The numbers of keys as a logic knows them; 0 for those that have none here.
unsigned long keyNumber(const QKeyEvent& event) {
    struct Named {
        int key;
        unsigned long number;
    };
    constexpr std::array kNamed{
        Named{Qt::Key_Return, 13},   Named{Qt::Key_Enter, 13},    Named{Qt::Key_Escape, 27},
        Named{Qt::Key_Tab, 9},       Named{Qt::Key_Backspace, 8}, Named{Qt::Key_PageUp, 33},
        Named{Qt::Key_PageDown, 34}, Named{Qt::Key_End, 35},      Named{Qt::Key_Home, 36},
        Named{Qt::Key_Left, 37},     Named{Qt::Key_Up, 38},       Named{Qt::Key_Right, 39},
        Named{Qt::Key_Down, 40},     Named{Qt::Key_Insert, 45},   Named{Qt::Key_Delete, 46}};
    const int key = event.key();
    for (const Named& named : kNamed) {
        if (named.key == key) {
            return named.number;
        }
    }
    const bool same = key == Qt::Key_Space || (key >= Qt::Key_0 && key <= Qt::Key_9) ||
                      (key >= Qt::Key_A && key <= Qt::Key_Z);
    return same ? static_cast<unsigned long>(key) : 0;
}

} // namespace

KeyRouter::KeyRouter(std::weak_ptr<WindowState> dialog) : m_dialog(std::move(dialog)) {
    QCoreApplication::instance()->installEventFilter(this);
}

KeyRouter::~KeyRouter() {
    QCoreApplication::instance()->removeEventFilter(this);
}

bool KeyRouter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) {
        return false;
    }
    auto* const receiver = static_cast<QWidget*>(watched);
    const auto dialog = m_dialog.lock();
    if (!dialog || dialog->owner == nullptr || !dialog->tied ||
        receiver->window() != dialog->window) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.isAutoRepeat() || !isNew(key, *receiver)) {
        return false;
    }
    tagMSG message;
    message.hwnd = receiver;
    message.message = kKeyDownMessage;
    message.wParam = keyNumber(key);
    bool taken = false;
    withoutThrowing([&] { taken = dialog->owner->PreTranslateMessage(&message); });
    if (taken) {
        event->accept();
    }
    return taken;
}

bool KeyRouter::isNew(const QKeyEvent& event, const QWidget& receiver) {
    const bool again = m_lastEvent == &event && m_lastReceiver != nullptr &&
                       m_lastReceiver != &receiver && receiver.isAncestorOf(m_lastReceiver);
    m_lastEvent = &event;
    m_lastReceiver = &receiver;
    return !again;
}

} // namespace orvex
