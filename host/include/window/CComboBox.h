#pragma once

#include "CWnd.h"

// A combo box (QComboBox). Indices from 0; -1 for none. Works hidden too.
class CComboBox : public CWnd {
public:
    int AddString(const wchar_t* text); // after the others; never selects
    int DeleteString(int index);        // how many are left, or -1; its selection goes with it
    void ResetContent();
    [[nodiscard]] int GetCount() const;

    [[nodiscard]] int GetCurSel() const;
    int SetCurSel(int index); // out of range: no selection and -1

    // The text's length; -1 and an empty text for a bad index.
    int GetLBText(int index, CStdStr<wchar_t>& text) const;

    // The next one following `after`, from the beginning when need be; the whole text, ignoring
    // case.
    [[nodiscard]] int FindStringExact(int after, const wchar_t* text) const;
    // Likewise; else the next text that begins so, if `text` isn't empty.
    [[nodiscard]] int FindString(int after, const wchar_t* text) const;
    int SelectString(int after, const wchar_t* text); // by FindString; nothing found: no change
};
