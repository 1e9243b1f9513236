#pragma once

#include "CStdStr.h"
#include "HICON.h"
#include "windowRecords.h"

#include <memory>

class CDataExchange;

namespace orvex {
struct WindowState;
}

// A window as a dialog's logic sees it: a dialog tied to its view, or a control of one under its
// number. All members may be called on a window without a widget, and then do nothing.
//
// What is set through these classes is silent: no signal of the widget comes of it, so a view's
// slots run for what the user does and nothing else. Texts are plain text always.
class CWnd {
public:
    CWnd();
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    // Deletes the view when SetAutoDelete said so; safe when Qt has deleted it before.
    virtual ~CWnd();

    virtual void DoDataExchange(CDataExchange* exchange);
    // Called with each key press inside the view before Qt acts on it, but for automatic repeats;
    // true swallows the key. Releases aren't notified.
    virtual bool PreTranslateMessage(tagMSG* message);
    // Called with a check box's number after the user clicked it; high 16 bits of wParam are 0,
    // lParam is the widget. Nobody asks for the result.
    virtual bool OnCommand(unsigned long wParam, long lParam);
    virtual bool OnChildNotify(unsigned message, unsigned long wParam, long lParam, long* result);
    // Called when a control object has just been bound to its widget.
    virtual void PreSubclassWindow();

    // Ties this object to its view, or unties it (null). An object and a view have one partner
    // each, the last one.
    void SetHandle(HWND view);
    // The object tied to a view. Null for an untied view, and from the moment on when the dialog's
    // loop ends: a field of a closing view that loses the focus reaches nobody any more.
    [[nodiscard]] static CWnd* FromHandle(HWND view);
    [[nodiscard]] HWND GetSafeHwnd() const; // null when there is no widget
    // With both true the view is deleted in the destructor.
    void SetAutoDelete(bool deleteView, bool withObject);

    // Registers a widget of the view under a number; the last one counts, null takes it out. The
    // widget stays the view's. Check boxes report clicks to OnCommand from now on. Number 1 on a
    // button makes it the default button, any other button loses its automatic default. Lists and
    // tables emit itemClicked for changes of the selection by keys and by a click on empty ground
    // (which clears it) as well, once per change, with a null item when nothing is selected.
    void SetDlgItem(int number, QWidget* widget);
    // Never null, the same object each time, owned here; without a widget when nothing is
    // registered under the number.
    [[nodiscard]] CWnd* GetDlgItem(int number);
    void CheckDlgButton(int number, int check);
    [[nodiscard]] int IsDlgButtonChecked(int number) const; // 0 or 1

    // Binds this object to the widget under the number in that dialog; false when there is none.
    // Binding again does nothing.
    bool SubclassDlgItem(int number, CWnd* dialog);
    // Binds this object to a widget directly; false for null.
    bool SubclassWindow(HWND widget);

    // Runs DoDataExchange; true: controls to members, with checks. False after a failed check, and
    // when an exchange of this window is on its way already.
    bool UpdateData(bool save);

    bool EnableWindow(bool enable); // true when it was disabled before
    [[nodiscard]] bool IsWindowEnabled() const;
    void SetWindowTextW(const wchar_t* text); // null is empty
    void GetWindowTextW(CStdStr<wchar_t>& text) const;
    // At most max - 1 characters and a terminator; gives their number.
    int GetWindowTextW(wchar_t* buffer, int max) const;

    // On the screen, without a frame. MoveWindow with the same rectangle changes nothing.
    void GetWindowRect(tagRECT* rect) const;
    // Of a dialog on the screen; a rectangle that is empty or of which no screen shows enough to
    // grab leaves the place as it is. Of a control in the client area of what it stands in.
    void MoveWindow(const tagRECT& rect, bool repaint = true);
    // From 0, 0; of lists and tables the area of the items.
    void GetClientRect(tagRECT* rect) const;
    void ScreenToClient(tagRECT* rect) const;

    // Of a control: the dialog that registered it. Of a dialog: what it was constructed with, null
    // when that is gone.
    [[nodiscard]] CWnd* GetParent() const;
    [[nodiscard]] int GetDlgCtrlID() const; // 0 for none

    void SetFocus();
    void Invalidate();
    void SetIcon(HICON icon, int big); // null: nothing
    // Accepted without effect: the view decides on frames.
    bool ModifyStyle(unsigned remove, unsigned add, unsigned flags = 0);

    // A modal message in plain text; null caption: the program's. `flags`: 0 OK, 1 OK and cancel,
    // 3 yes, no and cancel, 4 yes and no; 16 error, 32 question, 48 warning, 64 information.
    // Gives 1 OK, 2 cancel, 6 yes, 7 no; without a running application 0.
    int MessageBoxW(const wchar_t* text, const wchar_t* caption = nullptr, unsigned flags = 0);

private:
    friend struct orvex::WindowState;

    std::shared_ptr<orvex::WindowState> m_state;
};

// The same on handles. GetDlgItem gives null for an unregistered number; a null handle does
// nothing.
HWND GetDlgItem(HWND dialog, int number);
bool EnableWindow(HWND window, bool enable);
void SetWindowTextW(HWND window, const wchar_t* text);
