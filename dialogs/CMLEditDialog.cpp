#include "CMLEditDialog.h"

#include "CDataExchange.h"
#include "CMLEditDialogView.h"
#include "controlNumbers.h"
#include "toolTable.h"

#include <string>

using namespace mledit;

namespace {

constexpr unsigned kResource = 5758;
constexpr int kCloseNumber = 13;

} // namespace

CMLEditDialog::CMLEditDialog(CWnd* parent) : CDialog(kResource, parent) {
    auto* button = m_tools.data();
    for (const ToolRow& row : kTools) {
        const std::wstring name = row.bitmap;
        // A disabled tool looks like one that has the focus.
        const std::wstring focus = name + L"_FOCUS";
        button++->LoadBitmaps((name + L"_UP").c_str(), (name + L"_DOWN").c_str(), focus.c_str(),
                              focus.c_str());
    }
    new VOUI::CMLEditDialog(nullptr, this); // ties itself to this and goes with it
}

void CMLEditDialog::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    auto* button = m_tools.data();
    for (const ToolRow& row : kTools) {
        DDX_Control(exchange, row.control, *button++);
    }
    DDX_Control(exchange, kPaletteClose, m_close);
}

int CMLEditDialog::OnInitDialog() {
    auto* button = m_tools.data();
    for (const ToolRow& row : kTools) {
        button++->SubclassDlgItem(row.control, this);
    }
    return CDialog::OnInitDialog();
}

void CMLEditDialog::choose(Tool tool) {
    m_toolNumber = static_cast<int>(tool);
    CDialog::OnOK();
}

void CMLEditDialog::OnClosedCross() {
    choose(Tool::closedCross);
}

void CMLEditDialog::OnOpenCross() {
    choose(Tool::openCross);
}

void CMLEditDialog::OnMergedCross() {
    choose(Tool::mergedCross);
}

void CMLEditDialog::OnClosedTee() {
    choose(Tool::closedTee);
}

void CMLEditDialog::OnOpenTee() {
    choose(Tool::openTee);
}

void CMLEditDialog::OnMergedTee() {
    choose(Tool::mergedTee);
}

void CMLEditDialog::OnCornerJoint() {
    choose(Tool::cornerJoint);
}

void CMLEditDialog::OnAddVertex() {
    choose(Tool::addVertex);
}

void CMLEditDialog::OnDeleteVertex() {
    choose(Tool::deleteVertex);
}

void CMLEditDialog::OnCutSingle() {
    choose(Tool::cutSingle);
}

void CMLEditDialog::OnCutAll() {
    choose(Tool::cutAll);
}

void CMLEditDialog::OnWeldAll() {
    choose(Tool::weldAll);
}

void CMLEditDialog::OnClose() {
    m_toolNumber = kCloseNumber;
    CDialog::OnOK();
}

void CMLEditDialog::OnPaint() {}
