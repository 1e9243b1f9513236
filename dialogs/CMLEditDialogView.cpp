#include "CMLEditDialogView.h"

#include "CMLEditDialog.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "toolTable.h"
#include "ui_CMLEditDialog.h"

#include <QPixmap>

using namespace mledit;

namespace VOUI {

CMLEditDialog::CMLEditDialog(QWidget* parent, CWnd* logic)
    : QBaseDialog(parent), m_layout(std::make_unique<Ui_MleditDialog>()) {
    m_layout->setupUi(this);
    for (const ToolRow& row : kTools) {
        findChild<QPushButton*>(row.button)->setIcon(QPixmap(row.picture));
    }
    connectButtons();
    if (auto* const palette = dynamic_cast<::CMLEditDialog*>(logic)) {
        palette->SetHandle(this);
        palette->SetAutoDelete(true, true);
        registerButtons(*palette);
    }
}

CMLEditDialog::~CMLEditDialog() = default;

void CMLEditDialog::connectButtons() {
    const auto onClick = [this](QPushButton* button, void (CMLEditDialog::*slot)()) {
        connect(button, &QPushButton::clicked, this, slot);
    };
    onClick(m_layout->closedCrossBtn, &CMLEditDialog::OnClosedCross);
    onClick(m_layout->openCrossBtn, &CMLEditDialog::OnOpenCross);
    onClick(m_layout->mergedCrossBtn, &CMLEditDialog::OnMergedCross);
    onClick(m_layout->closedTeeBtn, &CMLEditDialog::OnClosedTee);
    onClick(m_layout->openTeeBtn, &CMLEditDialog::OnOpenTee);
    onClick(m_layout->mergedTeeBtn, &CMLEditDialog::OnMergedTee);
    onClick(m_layout->cornerJointBtn, &CMLEditDialog::OnCornerJoint);
    onClick(m_layout->addVertexBtn, &CMLEditDialog::OnAddVertex);
    onClick(m_layout->deleteVertexBtn, &CMLEditDialog::OnDeleteVertex);
    onClick(m_layout->cutSingleBtn, &CMLEditDialog::OnCutSingle);
    onClick(m_layout->cutAllBtn, &CMLEditDialog::OnCutAll);
    onClick(m_layout->weldAllBtn, &CMLEditDialog::OnWeldAll);
    onClick(m_layout->closeBtn, &CMLEditDialog::OnClose);
}

void CMLEditDialog::registerButtons(::CMLEditDialog& logic) {
    for (const ToolRow& row : kTools) {
        logic.SetDlgItem(row.control, findChild<QPushButton*>(row.button));
    }
    logic.SetDlgItem(kPaletteClose, m_layout->closeBtn);
}

void CMLEditDialog::notify(void (::CMLEditDialog::*handler)()) {
    if (auto* const logic = logicOf<::CMLEditDialog>(this)) {
        (logic->*handler)();
    }
}

void CMLEditDialog::OnClosedCross() {
    notify(&::CMLEditDialog::OnClosedCross);
}

void CMLEditDialog::OnOpenCross() {
    notify(&::CMLEditDialog::OnOpenCross);
}

void CMLEditDialog::OnMergedCross() {
    notify(&::CMLEditDialog::OnMergedCross);
}

void CMLEditDialog::OnClosedTee() {
    notify(&::CMLEditDialog::OnClosedTee);
}

void CMLEditDialog::OnOpenTee() {
    notify(&::CMLEditDialog::OnOpenTee);
}

void CMLEditDialog::OnMergedTee() {
    notify(&::CMLEditDialog::OnMergedTee);
}

void CMLEditDialog::OnCornerJoint() {
    notify(&::CMLEditDialog::OnCornerJoint);
}

void CMLEditDialog::OnAddVertex() {
    notify(&::CMLEditDialog::OnAddVertex);
}

void CMLEditDialog::OnDeleteVertex() {
    notify(&::CMLEditDialog::OnDeleteVertex);
}

void CMLEditDialog::OnCutSingle() {
    notify(&::CMLEditDialog::OnCutSingle);
}

void CMLEditDialog::OnCutAll() {
    notify(&::CMLEditDialog::OnCutAll);
}

void CMLEditDialog::OnWeldAll() {
    notify(&::CMLEditDialog::OnWeldAll);
}

void CMLEditDialog::OnClose() {
    notify(&::CMLEditDialog::OnClose);
}

} // namespace VOUI
