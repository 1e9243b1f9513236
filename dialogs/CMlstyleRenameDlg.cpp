#include "CMlstyleRenameDlg.h"

#include "CDataExchange.h"
#include "CMlstyleRenameDlgView.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "styleNames.h"

using namespace mledit;

namespace {

constexpr unsigned kResource = 109;
constexpr int kWordLimit = 31;
constexpr const wchar_t* kPlace = L"MlstyleRenamePos";

} // namespace

CMlstyleRenameDlg::CMlstyleRenameDlg(CWnd* parent) : CDialog(kResource, parent) {
    m_nameField.SetMaxWords(kWordLimit);
    new VOUI::CMlstyleRenameDlg(nullptr, this); // ties itself to this and goes with it
}

void CMlstyleRenameDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kRenameStyleCombo, m_styles);
    DDX_Text(exchange, kRenameOldName, m_oldName);
    DDX_Text(exchange, kRenameNameField, m_newName);
    DDX_Control(exchange, kRenameNameField, m_nameField);
}

int CMlstyleRenameDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    for (const CStdStr<wchar_t>& name : styleNames(m_dictionaryId)) {
        m_styles.AddString(name);
    }
    m_styles.SetCurSel(0);
    UpdateData(false);
    restorePosition(*this, kPlace);
    setDialogIcon(*this, 1);
    return 1;
}

void CMlstyleRenameDlg::OnEnterName() {
    UpdateData(true);
    const bool isNew = m_styles.FindStringExact(-1, m_newName) == -1;
    GetDlgItem(kAcceptButton)->EnableWindow(isNew && isNameForRenaming(m_newName.text()));
}

void CMlstyleRenameDlg::OnOK() {
    UpdateData(true);
    storePosition(*this, kPlace);
    CDialog::OnOK();
}
