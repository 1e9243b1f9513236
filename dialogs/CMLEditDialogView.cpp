#include "CMLEditDialogView.h"

#include "CMLEditDialog.h"
#include "logicOf.h"
#include "ui_CMLEditDialog.h"

#include <QPixmap>

namespace VOUI {

struct CMLEditDialog::ToolRow {
    QPushButton* Ui_MleditDialog::*button;
    const char* picture; // none for Close
    void (CMLEditDialog::*slot)();
};

// In the order of ::CMLEditDialog::kControls.
const CMLEditDialog::ToolRow CMLEditDialog::kTools[] = {
    {&Ui_MleditDialog::closedCrossBtn, ":/ML_CLOSEDCROSS_UP.BMP", &CMLEditDialog::OnClosedCross},
    {&Ui_MleditDialog::openCrossBtn, ":/ML_OPENCROSS_UP.BMP", &CMLEditDialog::OnOpenCross},
    {&Ui_MleditDialog::mergedCrossBtn, ":/ML_MERGEDCROSS_UP.BMP", &CMLEditDialog::OnMergedCross},
    {&Ui_MleditDialog::closedTeeBtn, ":/ML_CLOSEDTREE_UP.BMP", &CMLEditDialog::OnClosedTee},
    {&Ui_MleditDialog::openTeeBtn, ":/ML_OPENTREE_UP.BMP", &CMLEditDialog::OnOpenTee},
    {&Ui_MleditDialog::mergedTeeBtn, ":/ML_MERGEDTREE_UP.BMP", &CMLEditDialog::OnMergedTee},
    {&Ui_MleditDialog::cornerJointBtn, ":/ML_CORNERJOINT_UP.BMP", &CMLEditDialog::OnCornerJoint},
    {&Ui_MleditDialog::addVertexBtn, ":/ML_ADDVERTEX_UP.BMP", &CMLEditDialog::OnAddVertex},
    {&Ui_MleditDialog::deleteVertexBtn, ":/ML_DELETEVERTEX_UP.BMP", &CMLEditDialog::OnDeleteVertex},
    {&Ui_MleditDialog::cutSingleBtn, ":/ML_CUTSINGLE_UP.BMP", &CMLEditDialog::OnCutSingle},
    {&Ui_MleditDialog::cutAllBtn, ":/ML_CUTALL_UP.BMP", &CMLEditDialog::OnCutAll},
    {&Ui_MleditDialog::weldAllBtn, ":/ML_WELDALL_UP.BMP", &CMLEditDialog::OnWeldAll},
    {&Ui_MleditDialog::closeBtn, nullptr, &CMLEditDialog::OnClose},
};

CMLEditDialog::CMLEditDialog(QWidget* parent, CWnd* logic)
    : QBaseDialog(parent), m_layout(std::make_unique<Ui_MleditDialog>()) {
    m_layout->setupUi(this);
    for (const ToolRow& row : kTools) {
        QPushButton* const button = m_layout.get()->*row.button;
        if (row.picture != nullptr) {
            button->setIcon(QPixmap(row.picture));
        }
        connect(button, &QPushButton::clicked, this, row.slot);
    }

    auto* const palette = dynamic_cast<::CMLEditDialog*>(logic);
    if (palette == nullptr) {
        return;
    }
    palette->SetHandle(this);
    palette->SetAutoDelete(true, true);
    const int* control = ::CMLEditDialog::kControls.data();
    for (const ToolRow& row : kTools) {
        palette->SetDlgItem(*control++, m_layout.get()->*row.button);
    }
}

CMLEditDialog::~CMLEditDialog() = default;

void CMLEditDialog::tell(void (::CMLEditDialog::*handler)()) {
    if (auto* const logic = logicOf<::CMLEditDialog>(this)) {
        (logic->*handler)();
    }
}

void CMLEditDialog::OnClosedCross() {
    tell(&::CMLEditDialog::OnClosedCross);
}

void CMLEditDialog::OnOpenCross() {
    tell(&::CMLEditDialog::OnOpenCross);
}

void CMLEditDialog::OnMergedCross() {
    tell(&::CMLEditDialog::OnMergedCross);
}

void CMLEditDialog::OnClosedTee() {
    tell(&::CMLEditDialog::OnClosedTee);
}

void CMLEditDialog::OnOpenTee() {
    tell(&::CMLEditDialog::OnOpenTee);
}

void CMLEditDialog::OnMergedTee() {
    tell(&::CMLEditDialog::OnMergedTee);
}

void CMLEditDialog::OnCornerJoint() {
    tell(&::CMLEditDialog::OnCornerJoint);
}

void CMLEditDialog::OnAddVertex() {
    tell(&::CMLEditDialog::OnAddVertex);
}

void CMLEditDialog::OnDeleteVertex() {
    tell(&::CMLEditDialog::OnDeleteVertex);
}

void CMLEditDialog::OnCutSingle() {
    tell(&::CMLEditDialog::OnCutSingle);
}

void CMLEditDialog::OnCutAll() {
    tell(&::CMLEditDialog::OnCutAll);
}

void CMLEditDialog::OnWeldAll() {
    tell(&::CMLEditDialog::OnWeldAll);
}

void CMLEditDialog::OnClose() {
    tell(&::CMLEditDialog::OnClose);
}

} // namespace VOUI
