#include "CMlstyleNewDlg.h"

#include "CDataExchange.h"
#include "CMlstyleNewDlgView.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "styleNames.h"

using namespace mledit;

namespace {

constexpr unsigned kResource = 107;
constexpr int kWordLimit = 31;
constexpr const wchar_t* kPlace = L"MlstyleNewPos";

} // namespace

CMlstyleNewDlg::CMlstyleNewDlg(CWnd* parent) : CDialog(kResource, parent) {
    m_nameField.SetMaxWords(kWordLimit);
    new VOUI::CMlstyleNewDlg(nullptr, this); // ties itself to this and goes with it
}

void CMlstyleNewDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kNewStyleCombo, m_styles);
    DDX_Text(exchange, kNewNameField, m_newName);
    DDX_CBString(exchange, kNewStyleCombo, m_startWith);
    DDX_Control(exchange, kNewNameField, m_nameField);
}

int CMlstyleNewDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    AddStyleNameToCombo();
    UpdateData(false); // now that the combo has the style to start with
    restorePosition(*this, kPlace);
    setDialogIcon(*this, 1);
    return 1;
}

void CMlstyleNewDlg::AddStyleNameToCombo() {
    for (const CStdStr<wchar_t>& name : styleNames(m_dictionaryId)) {
        m_styles.AddString(name);
    }
}

void CMlstyleNewDlg::OnEnterName() {
    UpdateData(true);
    const bool isNew = m_styles.FindStringExact(-1, m_newName) == -1;
    GetDlgItem(kAcceptButton)->EnableWindow(isNew && isNameForNewStyle(m_newName.text()));
}

void CMlstyleNewDlg::OnOK() {
    UpdateData(true);
    storePosition(*this, kPlace);
    CDialog::OnOK();
}
