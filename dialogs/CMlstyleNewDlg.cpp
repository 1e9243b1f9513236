#include "CMlstyleNewDlg.h"

#include "CDataExchange.h"
#include "CMlstyleNewDlgView.h"
#include "dialogIcon.h"
#include "dialogPlace.h"
#include "styleNameRules.h"
#include "styleNames.h"

namespace {

constexpr unsigned kResource = 107;
constexpr int kContinue = 1;
constexpr int kNameField = 1035;
constexpr int kStyleCombo = 1036;
constexpr int kWordLimit = 31;
constexpr const wchar_t* kPlace = L"MlstyleNewPos";

} // namespace

CMlstyleNewDlg::CMlstyleNewDlg(CWnd* parent) : CDialog(kResource, parent) {
    m_nameField.SetMaxWords(kWordLimit);
    new VOUI::CMlstyleNewDlg(nullptr, this); // ties itself to this and goes with it
}

void CMlstyleNewDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kStyleCombo, m_styles);
    DDX_Text(exchange, kNameField, m_newName);
    DDX_CBString(exchange, kStyleCombo, m_startWith);
    DDX_Control(exchange, kNameField, m_nameField);
}

int CMlstyleNewDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    AddStyleNameToCombo();
    UpdateData(false); // now that the combo has the style to start with
    restoreDialogPlace(*this, kPlace);
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
    GetDlgItem(kContinue)->EnableWindow(isNew && isNameForNewStyle(m_newName.text()));
}

void CMlstyleNewDlg::OnOK() {
    UpdateData(true);
    storeDialogPlace(*this, kPlace);
    CDialog::OnOK();
}
