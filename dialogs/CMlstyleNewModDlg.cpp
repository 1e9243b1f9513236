#include "CMlstyleNewModDlg.h"

#include "CDataExchange.h"
#include "CMlineStyleDialog.h"
#include "CMlstyleNewModDlgView.h"
#include "KdDbDictionary.h"
#include "KdDbMlineStyle.h"
#include "colorTexts.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "kddbObjects.h"
#include "styleAccessors.h"
#include "styleNames.h"
#include "textNumbers.h"

using namespace mledit;

namespace {

constexpr unsigned kResource = 105;
constexpr const wchar_t* kPlace = L"MlstyNewModDlgPos";

} // namespace

CMlstyleNewModDlg::CMlstyleNewModDlg(CWnd* parent) : CDialog(kResource, parent) {
    new VOUI::CMlstyleNewModDlg(nullptr, this); // ties itself to this and goes with it
}

CMlstyleNewModDlg::~CMlstyleNewModDlg() = default;

void CMlstyleNewModDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Text(exchange, kDescriptionField, m_description);
    DDX_Text(exchange, kStartAngleField, m_startAngleText);
    DDX_Text(exchange, kEndAngleField, m_endAngleText);
    DDX_Control(exchange, kOffsetField, m_offsetEdit);
    DDX_Control(exchange, kStartAngleField, m_startAngleEdit);
    DDX_Control(exchange, kEndAngleField, m_endAngleEdit);
    DDX_Control(exchange, kFillColorCombo, m_fillColor);
    DDX_Control(exchange, kElementColorCombo, m_elementColor);
    DDX_Control(exchange, kLinetypeCombo, m_linetype);
    DDX_Control(exchange, kElementList, m_elements);
    DDV_RealOffset(exchange, m_offsetEdit);
    DDV_RealAng(exchange, m_startAngleEdit);
    DDV_RealAng(exchange, m_endAngleEdit);
}

int CMlstyleNewModDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    SetcurentStyle(m_styleName);
    InitialDialog();
    OnCreate(nullptr);
    // Without its style the dialog would write to another one, or to none.
    if (m_mode == modeNew && !makeNewStyle()) {
        return 0;
    }
    if (!copyToScratch()) {
        removeNewStyle();
        return 0;
    }
    restorePosition(*this, kPlace);
    setDialogIcon(*this, 1);
    m_linetype.UpdateData(true);
    return 1;
}

void CMlstyleNewModDlg::SetcurentStyle(CStdStr<wchar_t> name) {
    m_styleId = styleUnder(m_dictionaryId, name);
}

int CMlstyleNewModDlg::OnCreate(tagCREATESTRUCTW* /*created*/) {
    const bool isNew = m_mode == modeNew;
    m_captionPrefix.LoadStringW(isNew ? texts::kNewStyleCaption : texts::kModifyStyleCaption);
    SetWindowTextW(m_captionPrefix + (isNew ? m_newName : m_styleName));
    return 0;
}

// From here on the new style stands in the drawing.
bool CMlstyleNewModDlg::makeNewStyle() {
    KdDbDictionary* dictionary = nullptr;
    KdDbMlineStyle* source = nullptr;
    kddbOpenObject(dictionary, m_dictionaryId, kForWrite);
    kddbOpenObject(source, m_styleId, kForRead);
    bool isMade = false;
    if (dictionary != nullptr && source != nullptr) {
        auto style = std::make_unique<KdDbMlineStyle>();
        style->initMlineStyle();
        style->set(*source, true);
        style->setName(m_newName);
        KdDbObjectId id;
        isMade = dictionary->setAt(m_newName, style.get(), id) == Status::done;
        if (isMade) {
            m_styleId = id;
            style.release()->close(); // the drawing's now
        }
    }
    if (source != nullptr) {
        source->close();
    }
    if (dictionary != nullptr) {
        dictionary->close();
    }
    return isMade;
}

bool CMlstyleNewModDlg::copyToScratch() {
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, m_styleId, kForRead);
    if (style == nullptr) {
        return false;
    }
    m_scratchStyle = std::make_unique<KdDbMlineStyle>();
    m_scratchStyle->initMlineStyle();
    m_scratchStyle->set(*style, true);
    style->close();
    return true;
}

void CMlstyleNewModDlg::removeNewStyle() {
    KdDbDictionary* dictionary = nullptr;
    if (m_mode == modeNew) {
        kddbOpenObject(dictionary, m_dictionaryId, kForWrite);
    }
    if (dictionary != nullptr) {
        dictionary->remove(m_newName);
        dictionary->close();
    }
}

void CMlstyleNewModDlg::OnOK() {
    UpdateData(true); // complains of a bad offset, whose row has its last good one
    if (!ValidateAng(m_startAngleText) || !ValidateAng(m_endAngleText)) {
        return;
    }
    ModifyStyle();
    storePosition(*this, kPlace);
    CDialog::OnOK();
}

void CMlstyleNewModDlg::OnCancel() {
    removeNewStyle();
    CDialog::OnCancel();
}

void CMlstyleNewModDlg::ModifyStyle() {
    GetFlag70();
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, m_styleId, kForWrite);
    if (style == nullptr) {
        return;
    }
    SetFlag(style, m_flagWord);
    style->setDescription(m_description);
    style->setFillColor(chosenFillColor(style->fillColor()));
    SetElementData(style);
    SetAnger(style);
    style->close();
}

void CMlstyleNewModDlg::showInPreview() {
    // The manager opens its dialogs without a parent, so mostly nothing is shown.
    auto* const manager = dynamic_cast<CMlineStyleDialog*>(GetParent());
    if (manager != nullptr && m_scratchStyle) {
        manager->PaintPreview(m_scratchStyle.get());
    }
}

void CMlstyleNewModDlg::ColorToString(int color, CStdStr<wchar_t>& text) {
    text = colorText(color);
}

void CMlstyleNewModDlg::StringToColor(CStdStr<wchar_t> text, int& color) {
    color = colorIndexOf(text);
}

void CMlstyleNewModDlg::OnDestroy() {
    m_elements.OnDestroy();
    m_rowColors.clear();
}
