#include "CMLEditDialog.h"

#include "CDataExchange.h"
#include "CMLEditDialogView.h"

#include <string>

namespace {

constexpr unsigned kResource = 5758;

// Between "IDB_" and "_UP", "_DOWN" or "_FOCUS", by tool number less one.
constexpr std::array<const wchar_t*, CMLEditDialog::kToolCount> kBitmapNames{
    L"CLOSE_CROSS",  L"OPEN_CROSS", L"MERGED_CROSS",  L"CLOSE_TREE", L"OPEN_TREE", L"MERGED_TREE",
    L"CORNER_JOINT", L"ADD_VERTEX", L"DELETE_VERTEX", L"CUT_SINGLE", L"CUT_ALL",   L"WELD_ALL"};

} // namespace

CMLEditDialog::CMLEditDialog(CWnd* parent) : CDialog(kResource, parent) {
    for (std::size_t i = 0; i < m_tools.size(); ++i) {
        const std::wstring stem = std::wstring(L"IDB_") + kBitmapNames[i];
        // A disabled tool looks like one that has the focus.
        const std::wstring focus = stem + L"_FOCUS";
        m_tools[i].LoadBitmaps((stem + L"_UP").c_str(), (stem + L"_DOWN").c_str(), focus.c_str(),
                               focus.c_str());
    }
    new VOUI::CMLEditDialog(nullptr, this); // ties itself to this and goes with it
}

void CMLEditDialog::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    for (std::size_t i = 0; i < m_tools.size(); ++i) {
        DDX_Control(exchange, kControls[i], m_tools[i]);
    }
    DDX_Control(exchange, kControls[kCloseNumber - 1], m_close);
}

int CMLEditDialog::OnInitDialog() {
    for (std::size_t i = 0; i < m_tools.size(); ++i) {
        m_tools[i].SubclassDlgItem(kControls[i], this);
    }
    return CDialog::OnInitDialog();
}

void CMLEditDialog::choose(int number) {
    m_toolNumber = number;
    CDialog::OnOK();
}

void CMLEditDialog::OnClosedCross() {
    choose(1);
}

void CMLEditDialog::OnOpenCross() {
    choose(2);
}

void CMLEditDialog::OnMergedCross() {
    choose(3);
}

void CMLEditDialog::OnClosedTee() {
    choose(4);
}

void CMLEditDialog::OnOpenTee() {
    choose(5);
}

void CMLEditDialog::OnMergedTee() {
    choose(6);
}

void CMLEditDialog::OnCornerJoint() {
    choose(7);
}

void CMLEditDialog::OnAddVertex() {
    choose(8);
}

void CMLEditDialog::OnDeleteVertex() {
    choose(9);
}

void CMLEditDialog::OnCutSingle() {
    choose(10);
}

void CMLEditDialog::OnCutAll() {
    choose(11);
}

void CMLEditDialog::OnWeldAll() {
    choose(12);
}

void CMLEditDialog::OnClose() {
    choose(kCloseNumber);
}

void CMLEditDialog::OnPaint() {}
