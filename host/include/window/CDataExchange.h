#pragma once

#include "CStdStr.h"

class CWnd;

// One exchange between a window's members and its controls.
class CDataExchange {
public:
    CDataExchange(CWnd* window, bool save);
    CDataExchange(const CDataExchange&) = delete;
    CDataExchange& operator=(const CDataExchange&) = delete;
    ~CDataExchange();

    bool m_bSaveAndValidate; // true: controls to members
    CWnd* m_pDlgWnd;

    // To be called by a check before it looks at a control.
    void PrepareEditCtrl(int number);
    // Ends the exchange: no further exchange or binding happens, and MessageBeep is silent until
    // the exchange is over, so that one failure is one beep. The focus stays where it is, because a
    // check may run while it moves.
    void Fail();
    [[nodiscard]] bool HasFailed() const { return m_failed; }
    [[nodiscard]] int checkedNumber() const { return m_checkedNumber; }

    // The exchange on its way, the innermost one; null when there is none.
    [[nodiscard]] static const CDataExchange* current();

private:
    bool m_failed = false;
    int m_checkedNumber = 0;
    CDataExchange* m_outer;
};

// A control's text. An unregistered number leaves the member alone.
void DDX_Text(CDataExchange* exchange, int number, CStdStr<wchar_t>& text);

// A combo box's text. To the control: selects the entry of that whole text, ignoring case; when
// there is none the selection stays. To the member: the shown text.
void DDX_CBString(CDataExchange* exchange, int number, CStdStr<wchar_t>& text);

// Binds a control object; again at each exchange, without effect.
void DDX_Control(CDataExchange* exchange, int number, CWnd& control);
