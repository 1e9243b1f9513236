#include "CMlineStyleDialogView.h"

#include "CMlineStyleDialog.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "elidedLabel.h"
#include "roomForText.h"
#include "ui_CMlineStyleDialog.h"

using namespace mledit;

namespace VOUI {

CMlineStyleDialog::CMlineStyleDialog(QWidget* parent, CWnd* logic)
    : QBaseDialog(parent), m_layout(std::make_unique<Ui_CMlineStyleDialog>()) {
    m_layout->setupUi(this); // connects the slot of the close button by its name
    elideLabel(*m_layout->labelCurrentMultilineStyleResult);
    makeRoomForText(*this);
    connectWidgets();
    auto* const dialog = dynamic_cast<::CMlineStyleDialog*>(logic);
    if (dialog == nullptr) {
        return;
    }
    dialog->SetHandle(this);
    dialog->SetAutoDelete(true, true);
    registerWidgets(*dialog);
}

CMlineStyleDialog::~CMlineStyleDialog() = default;

void CMlineStyleDialog::connectWidgets() {
    using View = CMlineStyleDialog;
    connect(m_layout->listWidgetStyles, &QListWidget::itemDoubleClicked, this,
            &View::OnListDbClick);
    connect(m_layout->listWidgetStyles, &QListWidget::itemClicked, this, &View::OnListSelChange);
    const auto onClick = [this](QPushButton* button, void (View::*slot)()) {
        connect(button, &QPushButton::clicked, this, slot);
    };
    onClick(m_layout->pBtnSetCurrent, &View::OnSetCurStyle);
    onClick(m_layout->pBtnNew, &View::OnAddStyle);
    onClick(m_layout->pBtnModify, &View::OnModifyStyle);
    onClick(m_layout->pBtnRename, &View::OnRenameStyle);
    onClick(m_layout->pBtnDelete, &View::OnDeleteStyle);
    onClick(m_layout->pBtnLoad, &View::OnLoadStyle);
    onClick(m_layout->pBtnSave, &View::OnSaveStyle);
}

void CMlineStyleDialog::registerWidgets(::CMlineStyleDialog& logic) {
    logic.SetDlgItem(kManagerCurrentStyle, m_layout->labelCurrentMultilineStyleResult);
    logic.SetDlgItem(kManagerList, m_layout->listWidgetStyles);
    logic.SetDlgItem(kManagerDescriptionBox, m_layout->gBoxDescription);
    logic.SetDlgItem(kManagerDescription, m_layout->labelDescription);
    logic.SetDlgItem(kManagerSetCurrent, m_layout->pBtnSetCurrent);
    logic.SetDlgItem(kManagerNew, m_layout->pBtnNew);
    logic.SetDlgItem(kManagerModify, m_layout->pBtnModify);
    logic.SetDlgItem(kManagerRename, m_layout->pBtnRename);
    logic.SetDlgItem(kManagerDelete, m_layout->pBtnDelete);
    logic.SetDlgItem(kManagerLoad, m_layout->pBtnLoad);
    logic.SetDlgItem(kManagerSave, m_layout->pBtnSave);
    logic.SetDlgItem(kManagerPreview, m_layout->textEdit);
    logic.SetDlgItem(kAcceptButton, m_layout->pBtnClose);
}

void CMlineStyleDialog::notify(void (::CMlineStyleDialog::*handler)()) {
    if (auto* const logic = logicOf<::CMlineStyleDialog>(this)) {
        (logic->*handler)();
    }
}

void CMlineStyleDialog::OnOK() {
    notify(&::CMlineStyleDialog::OnOK);
}

void CMlineStyleDialog::OnListDbClick() {
    notify(&::CMlineStyleDialog::OnListDbClick);
}

void CMlineStyleDialog::OnListSelChange() {
    notify(&::CMlineStyleDialog::OnListSelChange);
}

void CMlineStyleDialog::OnSetCurStyle() {
    notify(&::CMlineStyleDialog::OnSetCurStyle);
}

void CMlineStyleDialog::OnAddStyle() {
    notify(&::CMlineStyleDialog::OnAddStyle);
}

void CMlineStyleDialog::OnModifyStyle() {
    notify(&::CMlineStyleDialog::OnModifyStyle);
}

void CMlineStyleDialog::OnRenameStyle() {
    notify(&::CMlineStyleDialog::OnRenameStyle);
}

void CMlineStyleDialog::OnDeleteStyle() {
    notify(&::CMlineStyleDialog::OnDeleteStyle);
}

void CMlineStyleDialog::OnLoadStyle() {
    notify(&::CMlineStyleDialog::OnLoadStyle);
}

void CMlineStyleDialog::OnSaveStyle() {
    notify(&::CMlineStyleDialog::OnSaveStyle);
}

void CMlineStyleDialog::on_pBtnClose_clicked() {
    OnCancel();
}

} // namespace VOUI
