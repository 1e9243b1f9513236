#include "CMlstyleNewModDlg.h"

#include "CDataExchange.h"
#include "KdDbMlineStyle.h"
#include "controlNumbers.h"
#include "fieldNumbers.h"
#include "kddbObjects.h"
#include "messageBeep.h"
#include "styleAccessors.h"

#include <algorithm>

using namespace mledit;

// Everything in the modify dialog but its elements: check boxes, fill, angles, and the checks of
// its fields.

namespace {

constexpr unsigned kBeep = static_cast<unsigned>(-1);

struct FlagBox {
    int control;
    int flag;
    bool (KdDbMlineStyle::*isSet)() const;
};
constexpr FlagBox kFlagBoxes[] = {
    {kFillBox, kStyleFilled, &KdDbMlineStyle::filled},
    {kJointsBox, kStyleShowMiters, &KdDbMlineStyle::showMiters},
    {kStartLineBox, kStyleStartSquareCap, &KdDbMlineStyle::startSquareCap},
    {kStartInnerArcsBox, kStyleStartInnerArcs, &KdDbMlineStyle::startInnerArcs},
    {kStartOuterArcBox, kStyleStartRoundCap, &KdDbMlineStyle::startRoundCap},
    {kEndLineBox, kStyleEndSquareCap, &KdDbMlineStyle::endSquareCap},
    {kEndInnerArcsBox, kStyleEndInnerArcs, &KdDbMlineStyle::endInnerArcs},
    {kEndOuterArcBox, kStyleEndRoundCap, &KdDbMlineStyle::endRoundCap},
};

CStdStr<wchar_t> angleText(double radians) {
    const ZeroRule keepZeros(0);
    return CStdStr<wchar_t>(degreesText(radians, 2));
}

} // namespace

void CMlstyleNewModDlg::InitialDialog() {
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, m_styleId, kForRead);
    if (style == nullptr) {
        return;
    }
    m_description = style->description();
    for (const FlagBox& box : kFlagBoxes) {
        CheckDlgButton(box.control, (style->*box.isSet)() ? 1 : 0);
    }
    GetDlgItem(kFillColorCombo)->EnableWindow(style->filled());
    int fillColor = m_fillColor.FindItemByColor(style->fillColor());
    if (fillColor < 0) {
        fillColor = m_fillColor.AddColorToMRU(style->fillColor());
    }
    if (fillColor >= 0) {
        m_fillColor.SetCurSel(fillColor);
    }
    m_startAngle = style->startAngle();
    m_startAngleText = angleText(m_startAngle);
    m_endAngle = style->endAngle();
    m_endAngleText = angleText(m_endAngle);
    fillElementList(*style);
    style->close();
    GetDlgItem(kOffsetField)->SetWindowTextW(kNoOffset);
    m_elements.Sort(0, false);
    UpdateData(false);
}

void CMlstyleNewModDlg::GetFlag70() {
    m_flagWord = 0;
    for (const FlagBox& box : kFlagBoxes) {
        if (IsDlgButtonChecked(box.control) != 0) {
            m_flagWord |= box.flag;
        }
    }
}

bool CMlstyleNewModDlg::OnCommand(unsigned long wParam, long lParam) {
    constexpr unsigned long kLowWord = 0xFFFF;
    const int control = static_cast<int>(wParam & kLowWord);
    const bool isClick = (wParam >> 16U & kLowWord) == 0;
    if (isClick &&
        std::ranges::find(kFlagBoxes, control, &FlagBox::control) != std::ranges::end(kFlagBoxes)) {
        GetFlag70();
        SetFlag(m_scratchStyle.get(), m_flagWord);
        showInPreview();
    }
    return CDialog::OnCommand(wParam, lParam);
}

void CMlstyleNewModDlg::OnOpenCloseFill() {
    GetDlgItem(kFillColorCombo)->EnableWindow(IsDlgButtonChecked(kFillBox) != 0);
}

// The fill is an index colour once it has been here; a true colour gives its index.
KdCmColor CMlstyleNewModDlg::chosenFillColor(const KdCmColor& before) const {
    KdCmColor color = before;
    m_fillColor.GetCurrentItemColor(color);
    color.setColorIndex(color.colorIndex());
    return color;
}

void CMlstyleNewModDlg::OnselchgFillcol() {
    if (m_scratchStyle) {
        m_scratchStyle->setFillColor(chosenFillColor(m_scratchStyle->fillColor()));
        showInPreview();
    }
}

void CMlstyleNewModDlg::OnAngKillfocus() {
    UpdateData(true);
    if (ValidateAng(m_startAngleText) && ValidateAng(m_endAngleText)) {
        SetAnger(m_scratchStyle.get());
        showInPreview();
    }
}

bool CMlstyleNewModDlg::ValidateAng(CStdStr<wchar_t> text) {
    return isCapAngle(text);
}

void CMlstyleNewModDlg::SetAnger(KdDbMlineStyle* style) {
    if (style != nullptr) {
        style->setStartAngle(radiansOf(m_startAngleText, style->startAngle()));
        style->setEndAngle(radiansOf(m_endAngleText, style->endAngle()));
    }
}

void CMlstyleNewModDlg::DDV_RealOffset(CDataExchange* exchange, CEdit& field) {
    if (!exchange->m_bSaveAndValidate || exchange->HasFailed()) {
        return;
    }
    CStdStr<wchar_t> text;
    field.GetWindowTextW(text);
    exchange->PrepareEditCtrl(field.GetDlgCtrlID());
    if (!gx_strIsValidReal(text, true, false, nullptr)) {
        MessageBeep(kBeep);
        exchange->Fail();
    }
}

void CMlstyleNewModDlg::DDV_RealAng(CDataExchange* exchange, CEdit& field) {
    if (!exchange->m_bSaveAndValidate || exchange->HasFailed()) {
        return;
    }
    CStdStr<wchar_t> text;
    field.GetWindowTextW(text);
    exchange->PrepareEditCtrl(field.GetDlgCtrlID());
    if (!gx_strIsValidReal(text, true, false, nullptr) || !isCapAngle(text)) {
        MessageBeep(kBeep);
        exchange->Fail();
    }
}
