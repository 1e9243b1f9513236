#pragma once

#include "CComboBox.h"
#include "CDialog.h"
#include "CEditLimited.h"
#include "KdDbObjectId.h"

// Asks for the name of a new style and for the style to start from. It changes nothing in the
// drawing: the caller sets m_startWith and m_dictionaryId, and reads the names after DoModal.
class CMlstyleNewDlg : public CDialog {
public:
    explicit CMlstyleNewDlg(CWnd* parent);

    void AddStyleNameToCombo();
    // Continue is enabled for a name that is new, in any case, and made of characters that
    // isNameForNewStyle allows.
    void OnEnterName();

    void DoDataExchange(CDataExchange* exchange) override;
    int OnInitDialog() override;
    void OnOK() override; // the state of the button was the check

private:
    CComboBox m_styles;

public:
    CStdStr<wchar_t> m_newName;
    CStdStr<wchar_t> m_startWith;
    KdDbObjectId m_dictionaryId;

private:
    CEditLimited m_nameField;
};
