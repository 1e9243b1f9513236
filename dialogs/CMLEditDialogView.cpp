#include "CMLEditDialogView.h"

#include "CMLEditDialog.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "toolTable.h"
#include "ui_CMLEditDialog.h"

#include <QPixmap>

#include <algorithm>

using namespace mledit;

namespace VOUI {

CMLEditDialog::CMLEditDialog(QWidget* parent, CWnd* logic)
    : QBaseDialog(parent), m_layout(std::make_unique<Ui_MleditDialog>()) {
    m_layout->setupUi(this);
    for (const ToolRow& row : kTools) {
        findChild<QPushButton*>(row.button)->setIcon(QPixmap(row.picture));
    }
    widenColumns();
    connectButtons();
    if (auto* const palette = dynamic_cast<::CMLEditDialog*>(logic)) {
        palette->SetHandle(this);
        palette->SetAutoDelete(true, true);
        registerButtons(*palette);
    }
}

CMLEditDialog::~CMLEditDialog() = default;

// Captions of equal width, with the gaps between them, stand under their pictures. What a large
// font adds to a caption is added to the gaps between the pictures, and a half at both ends.
void CMLEditDialog::widenColumns() {
    const QList<QLabel*> captions = m_layout->groupBox->findChildren<QLabel*>();
    int more = 0;
    for (const QLabel* const caption : captions) {
        more = std::max(more, caption->sizeHint().width() - caption->minimumWidth());
    }
    more += more % 2;
    for (QLabel* const caption : captions) {
        caption->setMinimumWidth(caption->minimumWidth() + more);
    }
    for (QHBoxLayout* const pictures :
         {m_layout->horizontalLayout, m_layout->horizontalLayout_3, m_layout->horizontalLayout_5}) {
        for (int index = 0; index < pictures->count(); index += 2) {
            QSpacerItem& gap = *pictures->itemAt(index)->spacerItem();
            const bool isEnd = index == 0 || index == pictures->count() - 1;
            gap.changeSize(gap.sizeHint().width() + (isEnd ? more / 2 : more), 0,
                           isEnd ? QSizePolicy::Expanding : QSizePolicy::Fixed);
        }
        pictures->invalidate();
    }
    // Nor is the sentence above them any wider.
    const int width = m_layout->groupBox->sizeHint().width();
    if (m_layout->label->sizeHint().width() > width) {
        m_layout->label->setWordWrap(true);
        m_layout->label->setFixedWidth(width);
    }
}

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
