#include "CDataExchange.h"

#include "CComboBox.h"
#include "WindowState.h"
#include "widgetText.h"

using orvex::WindowState;

namespace {

CDataExchange* s_current = nullptr;

// The widget that an exchange is about; null when it has failed or nothing is registered.
QWidget* widgetFor(const CDataExchange* exchange, int number) {
    if (exchange == nullptr || exchange->HasFailed() || exchange->m_pDlgWnd == nullptr) {
        return nullptr;
    }
    return WindowState::of(*exchange->m_pDlgWnd)->widgetOf(number);
}

} // namespace

CDataExchange::CDataExchange(CWnd* window, bool save)
    : m_bSaveAndValidate(save), m_pDlgWnd(window), m_outer(s_current) {
    s_current = this;
}

CDataExchange::~CDataExchange() {
    s_current = m_outer;
}

void CDataExchange::PrepareEditCtrl(int number) {
    m_checkedNumber = number;
}

void CDataExchange::Fail() {
    m_failed = true;
}

const CDataExchange* CDataExchange::current() {
    return s_current;
}

void DDX_Text(CDataExchange* exchange, int number, CStdStr<wchar_t>& text) {
    QWidget* const widget = widgetFor(exchange, number);
    if (widget == nullptr) {
        return;
    }
    if (exchange->m_bSaveAndValidate) {
        text = orvex::widgetText(widget);
    } else {
        orvex::setWidgetText(widget, text);
    }
}

void DDX_CBString(CDataExchange* exchange, int number, CStdStr<wchar_t>& text) {
    QWidget* const widget = widgetFor(exchange, number);
    if (widget == nullptr) {
        return;
    }
    if (exchange->m_bSaveAndValidate) {
        text = orvex::widgetText(widget);
        return;
    }
    CComboBox combo;
    combo.SubclassWindow(widget);
    if (const int index = combo.FindStringExact(-1, text); index >= 0) {
        combo.SetCurSel(index);
    }
}

void DDX_Control(CDataExchange* exchange, int number, CWnd& control) {
    if (widgetFor(exchange, number) != nullptr) {
        orvex::bindControl(control, exchange->m_pDlgWnd, number);
    }
}
