#include "CMlstyleRenameDlgView.h"

#include "CMlstyleRenameDlg.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "elidedLabel.h"
#include "roomForText.h"
#include "ui_CMlstyleRenameDlg.h"

using namespace mledit;

namespace VOUI {

CMlstyleRenameDlg::CMlstyleRenameDlg(QWidget* parent, CWnd* logic)
    : QBaseDialog(parent), m_layout(std::make_unique<Ui_CMlstyleRenameDlg>()) {
    m_layout->setupUi(this);
    makeRoomForText(*this);
    m_layout->renameComBo->hide();
    elideLabel(*m_layout->labelOldStyleNameResult);
    connect(m_layout->pBtnOK, &QPushButton::clicked, this, &CMlstyleRenameDlg::OnOK);
    connect(m_layout->pBtnCancel, &QPushButton::clicked, this, &CMlstyleRenameDlg::OnCancle);
    connect(m_layout->lineEditNewStyleName, &QLineEdit::textChanged, this,
            &CMlstyleRenameDlg::OnEnterName);

    auto* const dialog = dynamic_cast<::CMlstyleRenameDlg*>(logic);
    if (dialog == nullptr) {
        return;
    }
    dialog->SetHandle(this);
    dialog->SetAutoDelete(true, true);
    dialog->SetDlgItem(kRenameOldName, m_layout->labelOldStyleNameResult);
    dialog->SetDlgItem(kRenameNameField, m_layout->lineEditNewStyleName);
    dialog->SetDlgItem(kRenameStyleCombo, m_layout->renameComBo);
    dialog->SetDlgItem(kAcceptButton, m_layout->pBtnOK);
    dialog->SetDlgItem(kCancelButton, m_layout->pBtnCancel);
}

CMlstyleRenameDlg::~CMlstyleRenameDlg() = default;

void CMlstyleRenameDlg::OnOK() {
    if (auto* const logic = logicOf<::CMlstyleRenameDlg>(this)) {
        logic->OnOK();
    }
}

void CMlstyleRenameDlg::OnCancle() {
    QBaseDialog::OnCancel();
}

void CMlstyleRenameDlg::OnEnterName() {
    if (auto* const logic = logicOf<::CMlstyleRenameDlg>(this)) {
        logic->OnEnterName();
    }
}

} // namespace VOUI
