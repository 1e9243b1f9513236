#include "CMlstyleNewModDlg.h"

#include "CRect.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "controlNumbers.h"
#include "fieldNumbers.h"
#include "textNumbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <iterator>
#include <limits>

using namespace mledit;

// The table of elements in the modify dialog. The table is the working copy: whatever changes in
// it makes the elements of the style anew.

namespace {

enum Column : int { offsetColumn = 0, linetypeColumn = 1, colorColumn = 2 };

// In the order of the columns.
constexpr unsigned kHeadings[] = {texts::kOffsetHeading, texts::kLinetypeHeading,
                                  texts::kColorHeading};
constexpr unsigned kWholeRows = 32;
constexpr unsigned kSelected = 2;
constexpr int kOffsetRoom = 2049; // characters that are taken of the field, with the terminator
constexpr std::uint16_t kByLayerIndex = 256;

// Three headings of equal width. What would part the columns is no part of a heading.
CStdStr<wchar_t> headings(int width) {
    CStdStr<wchar_t> all;
    for (const unsigned number : kHeadings) {
        CStdStr<wchar_t> name;
        name.LoadStringW(number);
        std::wstring plain = name.text();
        std::erase_if(plain, [](wchar_t mark) { return mark == L',' || mark == L';'; });
        CStdStr<wchar_t> column;
        column.Format(L",%d", width);
        all += all.IsEmpty() ? L"" : L";";
        all += plain.c_str();
        all += column;
    }
    return all;
}

} // namespace

void CMlstyleNewModDlg::fillElementList(const KdDbMlineStyle& style) {
    CRect client;
    m_elements.GetClientRect(&client);
    m_elements.SetExtendedStyle(m_elements.GetExtendedStyle() | kWholeRows);
    m_elements.SetHeadings(headings(client.Width() / static_cast<int>(std::size(kHeadings))));
    m_elements.LoadColumnInfo();
    for (const ElementRow& row : elementRows(style)) {
        const int index = m_elements.AddItem(row.offset.c_str(), row.linetype.c_str(),
                                             shownColor(row.color).c_str());
        setColorOf(index, row.color);
    }
}

std::vector<ElementRow> CMlstyleNewModDlg::rows() const {
    std::vector<ElementRow> all;
    for (int row = 0; row < m_elements.GetItemCount(); ++row) {
        const KdCmColor* const color = colorOf(row);
        all.push_back({m_elements.GetItemText(row, offsetColumn).text(),
                       m_elements.GetItemText(row, linetypeColumn).text(),
                       color != nullptr ? *color : KdCmColor()});
    }
    return all;
}

void CMlstyleNewModDlg::SetElementData(KdDbMlineStyle* style) {
    if (style != nullptr) {
        const KdDocument* const document = curDoc();
        setElementRows(*style, rows(), document != nullptr ? document->database() : nullptr);
    }
}

void CMlstyleNewModDlg::showElementsInPreview() {
    SetElementData(m_scratchStyle.get());
    showInPreview();
}

int CMlstyleNewModDlg::selectedRow() const {
    return m_elements.GetNextItem(-1, kSelected);
}

KdCmColor* CMlstyleNewModDlg::colorOf(int row) const {
    return std::bit_cast<KdCmColor*>(m_elements.GetItemData(row));
}

void CMlstyleNewModDlg::setColorOf(int row, const KdCmColor& color) {
    if (KdCmColor* const known = colorOf(row)) {
        *known = color;
        return;
    }
    m_rowColors.push_back(color);
    m_elements.SetItemData(row, reinterpret_cast<unsigned long>(&m_rowColors.back()));
}

void CMlstyleNewModDlg::forgetColorOf(int row) {
    const KdCmColor* const known = colorOf(row);
    m_elements.SetItemData(row, 0);
    m_rowColors.remove_if([known](const KdCmColor& color) { return &color == known; });
}

void CMlstyleNewModDlg::SetControlState(bool on) {
    // A style keeps one element at least.
    GetDlgItem(kDeleteButton)->EnableWindow(on && m_elements.GetItemCount() != 1);
    for (const int control : {kLinetypeCombo, kOffsetField, kElementColorCombo}) {
        GetDlgItem(control)->EnableWindow(on);
    }
}

void CMlstyleNewModDlg::OnClickList(tagNMHDR* /*header*/, long* /*result*/) {
    const int row = selectedRow();
    SetControlState(row >= 0);
    if (row < 0) {
        GetDlgItem(kOffsetField)->SetWindowTextW(kNoOffset);
        return;
    }
    GetDlgItem(kOffsetField)->SetWindowTextW(m_elements.GetItemText(row, offsetColumn));
    m_linetype.SetCurSel(m_linetype.FindString(-1, m_elements.GetItemText(row, linetypeColumn)));
    m_linetype.UpdateData(true);
    const int index = m_elementColor.FindStringExact(-1, m_elements.GetItemText(row, colorColumn));
    if (index >= 0) {
        m_elementColor.SetCurSel(index);
    } else if (const KdCmColor* const color = colorOf(row)) {
        // It is offered from now on, and selected when the row is clicked again.
        m_elementColor.AddColorToMRU(*color);
    }
}

void CMlstyleNewModDlg::OnEnterOffset() {
    std::array<wchar_t, kOffsetRoom> text{};
    GetDlgItem(kOffsetField)->GetWindowTextW(text.data(), kOffsetRoom);
    if (gx_strIsValidReal(text.data(), true, false, nullptr)) {
        m_elements.SetItemText(selectedRow(), offsetColumn, text.data());
    }
}

void CMlstyleNewModDlg::OnOffsetKillfocus() {
    UpdateData(true);
    m_elements.Sort(offsetColumn, false);
    showElementsInPreview();
}

void CMlstyleNewModDlg::OnAddElement() {
    if (m_scratchStyle && m_scratchStyle->numElements() == std::numeric_limits<int>::max()) {
        CStdStr<wchar_t> text;
        text.LoadStringW(texts::kTableFull);
        MessageBoxW(text, nullptr, 0);
        return;
    }
    const std::wstring byLayer = localByLayer();
    const int row = m_elements.AddItem(L"0", byLayer.c_str(), byLayer.c_str());
    m_elements.SetFocus();
    m_elements.SetItemState(row, 1, 1);
    SetControlState(true);
    OnClickList();
    SetControlState(true);
    KdCmColor color;
    color.setColorIndex(kByLayerIndex);
    setColorOf(row, color);
    m_elements.Sort(offsetColumn, false);
    showElementsInPreview();
}

void CMlstyleNewModDlg::OnDelElement() {
    const int row = std::min(selectedRow(), m_elements.GetItemCount() - 1);
    if (row < 0) {
        return;
    }
    m_elements.SetFocus();
    m_elements.SetItemState(row, 1, 1);
    forgetColorOf(row);
    m_elements.DeleteItem(row);
    SetControlState(selectedRow() >= 0);
    showElementsInPreview();
}

void CMlstyleNewModDlg::OnselchgElecol() {
    const int row = selectedRow();
    if (row < 0) {
        return;
    }
    KdCmColor color;
    m_elementColor.GetCurrentItemColor(color);
    m_elements.SetItemText(row, colorColumn, shownColor(color).c_str());
    setColorOf(row, color);
    showElementsInPreview();
}

void CMlstyleNewModDlg::OnLtypeSelChange() {
    const int row = selectedRow();
    if (row < 0) {
        return;
    }
    CStdStr<wchar_t> name;
    m_linetype.GetLBText(m_linetype.GetCurSel(), name);
    m_elements.SetItemText(row, linetypeColumn, name);
    showElementsInPreview();
}
