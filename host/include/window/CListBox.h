#pragma once

#include "CWnd.h"

// A list of texts (QListWidget) in which at most one is selected. Indices from 0; -1 for none.
class CListBox : public CWnd {
public:
    int AddString(const wchar_t* text); // after the others; its index
    int DeleteString(int index);        // how many are left, or -1; its selection goes with it
    void ResetContent();
    [[nodiscard]] int GetCount() const;

    [[nodiscard]] int GetCurSel() const;
    int SetCurSel(int index);              // out of range: no selection and -1
    [[nodiscard]] int GetSelCount() const; // 0 or 1

    // The text's length; -1 and an empty text for a bad index.
    int GetText(int index, CStdStr<wchar_t>& text) const;

    // The next one following `after`, from the beginning when need be; the whole text, ignoring
    // case.
    [[nodiscard]] int FindStringExact(int after, const wchar_t* text) const;
    // Finds likewise and selects; nothing found leaves no selection.
    int SelectString(int after, const wchar_t* text);
};
