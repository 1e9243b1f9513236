#include "CMlStyleLoadDlgView.h"

#include "CMlStyleLoadDlg.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "roomForText.h"
#include "ui_CMlStyleLoadDlg.h"

using namespace mledit;

namespace VOUI {

CMlStyleLoadDlg::CMlStyleLoadDlg(QWidget* parent, CWnd* logic)
    : QBaseDialog(parent), m_layout(std::make_unique<Ui_CMlStyleLoadDlg>()) {
    m_layout->setupUi(this);
    makeRoomForText(*this);
    connect(m_layout->pBtnFile, &QPushButton::clicked, this, &CMlStyleLoadDlg::OnLoadFileStyle);
    connect(m_layout->listWidget, &QListWidget::itemDoubleClicked, this,
            &CMlStyleLoadDlg::OnDbClick);
    connect(m_layout->listWidget, &QListWidget::itemClicked, this,
            &CMlStyleLoadDlg::OnSelectChanged);
    connect(m_layout->pBtnOK, &QPushButton::clicked, this, &CMlStyleLoadDlg::OnOK);
    connect(m_layout->pBtnCancel, &QPushButton::clicked, this, &CMlStyleLoadDlg::OnCancel);

    auto* const dialog = dynamic_cast<::CMlStyleLoadDlg*>(logic);
    if (dialog == nullptr) {
        return;
    }
    dialog->SetHandle(this);
    dialog->SetAutoDelete(true, true);
    dialog->SetDlgItem(kLoadFileButton, m_layout->pBtnFile);
    dialog->SetDlgItem(kLoadStyleList, m_layout->listWidget);
    dialog->SetDlgItem(kAcceptButton, m_layout->pBtnOK);
    dialog->SetDlgItem(kCancelButton, m_layout->pBtnCancel);
}

CMlStyleLoadDlg::~CMlStyleLoadDlg() = default;

void CMlStyleLoadDlg::notify(void (::CMlStyleLoadDlg::*handler)()) {
    if (auto* const logic = logicOf<::CMlStyleLoadDlg>(this)) {
        (logic->*handler)();
    }
}

void CMlStyleLoadDlg::OnOK() {
    notify(&::CMlStyleLoadDlg::OnOK);
}

void CMlStyleLoadDlg::OnCancel() {
    QBaseDialog::OnCancel();
}

void CMlStyleLoadDlg::OnLoadFileStyle() {
    notify(&::CMlStyleLoadDlg::OnLoadFileStyle);
}

void CMlStyleLoadDlg::OnDbClick() {
    notify(&::CMlStyleLoadDlg::OnDbClick);
}

void CMlStyleLoadDlg::OnSelectChanged() {
    notify(&::CMlStyleLoadDlg::OnSelectChanged);
}

} // namespace VOUI
