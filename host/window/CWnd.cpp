#include "CWnd.h"

#include "CDataExchange.h"
#include "CDialog.h"
#include "SilentScope.h"
#include "WindowState.h"
#include "buttonListener.h"
#include "iconHandles.h"
#include "widgetText.h"
#include "withoutThrowing.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QPushButton>

#include <algorithm>
#include <utility>

using orvex::SilentScope;
using orvex::WindowState;

namespace {

// To the logic of the dialog while it is tied to its view.
QMetaObject::Connection hookClicks(QCheckBox& box, int number,
                                   const std::shared_ptr<WindowState>& state) {
    const std::weak_ptr<WindowState> dialog = state;
    return QObject::connect(&box, &QCheckBox::clicked, &box, [dialog, number, &box] {
        const auto alive = dialog.lock();
        if (alive && alive->owner != nullptr && alive->tied) {
            constexpr unsigned long kLow = 0xFFFF;
            orvex::withoutThrowing([&] {
                alive->owner->OnCommand(static_cast<unsigned long>(number) & kLow,
                                        reinterpret_cast<long>(&box));
            });
        }
    });
}

orvex::ButtonListener& buttonListener() {
    static orvex::ButtonListener listener;
    return listener;
}

// A press may end the dialog; it still is the user's.
QMetaObject::Connection reportPresses(QPushButton& button, int number,
                                      const std::shared_ptr<WindowState>& state) {
    const std::weak_ptr<WindowState> window = state;
    return QObject::connect(&button, &QPushButton::clicked, &button, [window, number] {
        const auto alive = window.lock();
        const auto* const dialog = alive ? dynamic_cast<CDialog*>(alive->owner) : nullptr;
        if (dialog != nullptr && buttonListener()) {
            orvex::withoutThrowing([&] { buttonListener()(dialog->resourceNumber(), number); });
        }
    });
}

bool enable(QWidget* widget, bool on) {
    if (widget == nullptr) {
        return false;
    }
    const bool wasDisabled = !widget->isEnabled();
    // A field that is disabled while it has the focus would report the end of its editing.
    const SilentScope silent(widget);
    widget->setEnabled(on);
    return wasDisabled;
}

} // namespace

orvex::ButtonListener orvex::setButtonListener(ButtonListener listener) {
    return std::exchange(buttonListener(), std::move(listener));
}

CWnd::CWnd() : m_state(std::make_shared<WindowState>()) {
    m_state->owner = this;
}

CWnd::~CWnd() {
    m_state->owner = nullptr;
    m_state->tied = false;
    orvex::forgetState(*m_state);
    if (m_state->deletesView) {
        delete m_state->window.data(); // null when Qt was first
    }
}

void CWnd::DoDataExchange(CDataExchange* /*exchange*/) {}

bool CWnd::PreTranslateMessage(tagMSG* /*message*/) {
    return false;
}

bool CWnd::OnCommand(unsigned long /*wParam*/, long /*lParam*/) {
    return false;
}

bool CWnd::OnChildNotify(unsigned /*message*/, unsigned long /*wParam*/, long /*lParam*/,
                         long* /*result*/) {
    return false;
}

void CWnd::PreSubclassWindow() {}

void CWnd::SetHandle(HWND view) {
    if (WindowState* const other = WindowState::withView(view);
        other != nullptr && other != m_state.get()) {
        other->tied = false;
        other->window = nullptr;
        orvex::forgetState(*other);
    }
    m_state->window = view;
    m_state->tied = view != nullptr;
    if (view != nullptr) {
        orvex::rememberState(*m_state);
    } else {
        orvex::forgetState(*m_state);
    }
}

CWnd* CWnd::FromHandle(HWND view) {
    const WindowState* const state = WindowState::withView(view);
    return state != nullptr && state->tied ? state->owner : nullptr;
}

HWND CWnd::GetSafeHwnd() const {
    return m_state->window;
}

void CWnd::SetAutoDelete(bool deleteView, bool withObject) {
    m_state->deletesView = deleteView && withObject;
}

void CWnd::SetDlgItem(int number, QWidget* widget) {
    WindowState::Item& item = m_state->items[number];
    QObject::disconnect(item.clicks);
    item.clicks = {};
    item.widget = widget;
    if (item.object) {
        WindowState::of(*item.object)->window = widget;
    }
    if (widget == nullptr) {
        return;
    }
    orvex::prepareWidget(*widget);
    if (auto* box = qobject_cast<QCheckBox*>(widget)) {
        item.clicks = hookClicks(*box, number, m_state);
    } else if (auto* button = qobject_cast<QPushButton*>(widget)) {
        item.clicks = reportPresses(*button, number, m_state);
        button->setAutoDefault(false);
        if (number == 1) {
            button->setDefault(true);
        }
    }
}

CWnd* CWnd::GetDlgItem(int number) {
    return &m_state->itemObject(number);
}

void CWnd::CheckDlgButton(int number, int check) {
    orvex::setChecked(m_state->widgetOf(number), check != 0);
}

int CWnd::IsDlgButtonChecked(int number) const {
    return orvex::isChecked(m_state->widgetOf(number)) ? 1 : 0;
}

bool CWnd::SubclassDlgItem(int number, CWnd* dialog) {
    return orvex::bindControl(*this, dialog, number);
}

bool CWnd::SubclassWindow(HWND widget) {
    if (widget == nullptr) {
        return false;
    }
    if (m_state->window != widget) {
        m_state->window = widget;
        orvex::prepareWidget(*widget);
        PreSubclassWindow();
    }
    return true;
}

bool CWnd::UpdateData(bool save) {
    if (m_state->exchanging) {
        return false;
    }
    struct Exchanging {
        explicit Exchanging(WindowState& window) : state(window) { state.exchanging = true; }
        ~Exchanging() { state.exchanging = false; }
        Exchanging(const Exchanging&) = delete;
        Exchanging& operator=(const Exchanging&) = delete;
        WindowState& state;
    };
    const Exchanging exchanging(*m_state);
    CDataExchange exchange(this, save);
    DoDataExchange(&exchange);
    return !exchange.HasFailed();
}

bool CWnd::EnableWindow(bool enableIt) {
    return enable(GetSafeHwnd(), enableIt);
}

bool CWnd::IsWindowEnabled() const {
    const QWidget* const widget = GetSafeHwnd();
    return widget != nullptr && widget->isEnabled();
}

void CWnd::SetWindowTextW(const wchar_t* text) {
    ::SetWindowTextW(GetSafeHwnd(), text);
}

void CWnd::GetWindowTextW(CStdStr<wchar_t>& text) const {
    text = orvex::widgetText(GetSafeHwnd());
}

int CWnd::GetWindowTextW(wchar_t* buffer, int max) const {
    if (buffer == nullptr || max <= 0) {
        return 0;
    }
    const CStdStr<wchar_t> text = orvex::widgetText(GetSafeHwnd());
    const int length = std::min(text.GetLength(), max - 1);
    std::copy_n(text.c_str(), length, buffer);
    buffer[length] = L'\0';
    return length;
}

CWnd* CWnd::GetParent() const {
    const auto parent = m_state->parent.lock();
    return parent ? parent->owner : nullptr;
}

int CWnd::GetDlgCtrlID() const {
    return m_state->number;
}

void CWnd::SetFocus() {
    if (QWidget* const widget = GetSafeHwnd()) {
        // The field that loses it reports no end of its editing: the logic took the focus away in
        // the middle of a step of its own.
        const SilentScope silent(QApplication::focusWidget());
        widget->setFocus(Qt::OtherFocusReason);
    }
}

void CWnd::Invalidate() {
    QWidget* const widget = GetSafeHwnd();
    if (auto* const area = qobject_cast<QAbstractScrollArea*>(widget)) {
        area->viewport()->update();
    } else if (widget != nullptr) {
        widget->update();
    }
}

void CWnd::SetIcon(HICON icon, int /*big*/) {
    const QIcon* const known = orvex::iconOf(icon);
    if (QWidget* const widget = GetSafeHwnd(); widget != nullptr && known != nullptr) {
        widget->setWindowIcon(*known);
    }
}

bool CWnd::ModifyStyle(unsigned /*remove*/, unsigned /*add*/, unsigned /*flags*/) {
    return false;
}

HWND GetDlgItem(HWND dialog, int number) {
    const WindowState* const state = WindowState::withView(dialog);
    return state != nullptr ? state->widgetOf(number) : nullptr;
}

bool EnableWindow(HWND window, bool enableIt) {
    return enable(window, enableIt);
}

void SetWindowTextW(HWND window, const wchar_t* text) {
    orvex::setWidgetText(window, text);
}
