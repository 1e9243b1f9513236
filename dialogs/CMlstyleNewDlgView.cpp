#include "CMlstyleNewDlgView.h"

#include "CMlstyleNewDlg.h"
#include "logicOf.h"
#include "ui_CMlstyleNewDlg.h"

namespace VOUI {

CMlstyleNewDlg::CMlstyleNewDlg(QWidget* parent, CWnd* logic)
    : QBaseDialog(parent), m_layout(std::make_unique<Ui_CMlstyleNewDlg>()) {
    m_layout->setupUi(this); // which connects the buttons by the names of their slots
    connect(m_layout->lineEditNewStyleName, &QLineEdit::textChanged, this,
            &CMlstyleNewDlg::OnEnterName);

    auto* const dialog = dynamic_cast<::CMlstyleNewDlg*>(logic);
    if (dialog == nullptr) {
        return;
    }
    dialog->SetHandle(this);
    dialog->SetAutoDelete(true, true);
    dialog->SetDlgItem(1035, m_layout->lineEditNewStyleName);
    dialog->SetDlgItem(1036, m_layout->cbBoxStartWith);
    dialog->SetDlgItem(1, m_layout->pBtnContinue);
    dialog->SetDlgItem(2, m_layout->pBtnCancel);
}

CMlstyleNewDlg::~CMlstyleNewDlg() = default;

void CMlstyleNewDlg::OnEnterName() {
    if (auto* const logic = logicOf<::CMlstyleNewDlg>(this)) {
        logic->OnEnterName();
    }
}

void CMlstyleNewDlg::on_pBtnCancel_clicked() {
    OnCancel();
}

void CMlstyleNewDlg::on_pBtnContinue_clicked() {
    if (auto* const logic = logicOf<::CMlstyleNewDlg>(this)) {
        logic->OnOK();
    }
}

} // namespace VOUI
