#include "CMlstyleNewDlgView.h"

#include "CMlstyleNewDlg.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "roomForText.h"
#include "ui_CMlstyleNewDlg.h"

#include <algorithm>

using namespace mledit;

namespace VOUI {

CMlstyleNewDlg::CMlstyleNewDlg(QWidget* parent, CWnd* logic)
    : QBaseDialog(parent), m_layout(std::make_unique<Ui_CMlstyleNewDlg>()) {
    m_layout->setupUi(this); // which connects the buttons by the names of their slots
    widenCaptions();
    makeRoomForText(*this);
    connect(m_layout->lineEditNewStyleName, &QLineEdit::textChanged, this,
            &CMlstyleNewDlg::OnEnterName);

    auto* const dialog = dynamic_cast<::CMlstyleNewDlg*>(logic);
    if (dialog == nullptr) {
        return;
    }
    dialog->SetHandle(this);
    dialog->SetAutoDelete(true, true);
    dialog->SetDlgItem(kNewNameField, m_layout->lineEditNewStyleName);
    dialog->SetDlgItem(kNewStyleCombo, m_layout->cbBoxStartWith);
    dialog->SetDlgItem(kAcceptButton, m_layout->pBtnContinue);
    dialog->SetDlgItem(kCancelButton, m_layout->pBtnCancel);
}

CMlstyleNewDlg::~CMlstyleNewDlg() = default;

// Both are drawn with the same fixed width, in which they take two lines at most.
void CMlstyleNewDlg::widenCaptions() {
    QLabel* const captions[] = {m_layout->labelNewStyleName, m_layout->labelStartWith};
    int width = captions[0]->minimumWidth();
    for (const QLabel* const caption : captions) {
        const QFontMetrics metrics = caption->fontMetrics();
        if (2 * caption->heightForWidth(caption->minimumWidth()) > 5 * metrics.lineSpacing()) {
            width = std::max(width, metrics.horizontalAdvance(caption->text()) + 1);
        }
    }
    resize(this->width() + width - captions[0]->minimumWidth(), height());
    for (QLabel* const caption : captions) {
        caption->setFixedWidth(width);
    }
}

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
