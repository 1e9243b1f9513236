#pragma once

#include "CComboBox.h"
#include "CDialog.h"
#include "CEditLimited.h"
#include "KdDbObjectId.h"

// Asks for a style's new name. It changes nothing in the drawing: the caller sets m_oldName and
// m_dictionaryId, and reads m_newName after DoModal.
class CMlstyleRenameDlg : public CDialog {
public:
    explicit CMlstyleRenameDlg(CWnd* parent);

    // OK is enabled for a name that no style has, the old one included, in any case, and that is
    // made of characters that isNameForRenaming allows.
    void OnEnterName();

    void DoDataExchange(CDataExchange* exchange) override;
    int OnInitDialog() override;
    void OnOK() override; // the state of the button was the check

private:
    CComboBox m_styles; // never seen; holds the names that are taken

public:
    CStdStr<wchar_t> m_oldName;
    CStdStr<wchar_t> m_newName;
    KdDbObjectId m_dictionaryId;

private:
    CEditLimited m_nameField;
};
