// The list and the state of the buttons.

#include "CMlineStyleDialog.h"

#include "CDataExchange.h"
#include "CMlineStyleDialogView.h"
#include "KdDbMlineStyle.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "dictionarySearch.h"
#include "hostHeap.h"
#include "kddbObjects.h"
#include "promptStatus.h"
#include "styleNames.h"
#include "systemVariables.h"

using namespace mledit;

namespace {

constexpr unsigned kResource = 101;
constexpr const wchar_t* kPlace = L"MlstylePos";

// Writes the entity name of a dictionary's entry; false, and nothing is written, where there is
// none.
bool findEntry(const long* dictionary, const wchar_t* key, long* entry) {
    resbuf* const found = kddbDictSearch(dictionary, key, 0);
    const resbuf* item = found;
    while (item != nullptr && item->restype != kResultObjectName) {
        item = item->rbnext;
    }
    if (item != nullptr) {
        entry[0] = item->resval.rlname[0];
        entry[1] = item->resval.rlname[1];
    }
    kdutRelRb(found);
    return item != nullptr;
}

} // namespace

CMlineStyleDialog::CMlineStyleDialog(CWnd* parent) : CDialog(kResource, parent) {
    new VOUI::CMlineStyleDialog(nullptr, this); // ties itself to this and goes with it
}

void CMlineStyleDialog::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kManagerPreview, m_preview);
    DDX_Control(exchange, kManagerList, m_list);
}

int CMlineStyleDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    setDialogIcon(*this, 0);
    long root[2] = {0, 0};
    if (kddbNamedObjDict(root) != kPromptNormal) {
        return 0;
    }
    if (findEntry(root, L"ACAD_MLINESTYLE", m_dictionaryName)) {
        kddbGetObjectId(m_dictionaryId, m_dictionaryName);
    }
    readCurrentStyle();
    AddStylesToList();
    m_list.SelectString(-1, m_currentStyle);
    constexpr unsigned kSunkenPicture = 526;
    m_preview.ModifyStyle(0, kSunkenPicture, 0);
    registerItems();
    restorePosition(*this, kPlace);
    m_resizer.Resize(this);
    OnListSelChange();
    return 1;
}

void CMlineStyleDialog::readCurrentStyle() {
    resbuf current;
    if (kdedGetVar(L"CMLSTYLE", &current) == kPromptNormal && current.restype == kResultText) {
        m_currentStyle = current.resval.rstring;
        rvex_free(current.resval.rstring);
    }
    GetDlgItem(kManagerCurrentStyle)->SetWindowTextW(m_currentStyle);
}

void CMlineStyleDialog::registerItems() {
    const struct {
        int number;
        unsigned flags;
    } items[] = {
        {kAcceptButton, RESIZE_LOCKBOTTOMRIGHT},
        {kManagerList, RESIZE_LOCKLEFT | RESIZE_LOCKRIGHT},
        {kManagerSetCurrent, RESIZE_LOCKRIGHT | RESIZE_LOCKTOP},
        {kManagerNew, RESIZE_LOCKRIGHT | RESIZE_LOCKTOP},
        {kManagerModify, RESIZE_LOCKRIGHT | RESIZE_LOCKTOP},
        {kManagerRename, RESIZE_LOCKRIGHT | RESIZE_LOCKTOP},
        {kManagerDelete, RESIZE_LOCKRIGHT | RESIZE_LOCKTOP},
        {kManagerLoad, RESIZE_LOCKRIGHT | RESIZE_LOCKTOP},
        {kManagerSave, RESIZE_LOCKRIGHT | RESIZE_LOCKTOP},
        {kManagerDescriptionBox, RESIZE_LOCKLEFT | RESIZE_LOCKRIGHT},
        {kManagerDescription, RESIZE_LOCKLEFT | RESIZE_LOCKRIGHT},
        {kManagerPreview, RESIZE_LOCKALL},
    };
    for (const auto& item : items) {
        m_resizer.Add(this, item.number, item.flags);
    }
}

void CMlineStyleDialog::AddStylesToList() {
    for (const CStdStr<wchar_t>& name : styleNames(m_dictionaryId)) {
        m_list.AddString(name);
    }
}

CStdStr<wchar_t> CMlineStyleDialog::selectedName() const {
    CStdStr<wchar_t> name;
    m_list.GetText(m_list.GetCurSel(), name);
    return name;
}

// The current style can't be deleted, STANDARD can't be renamed, and one that a multiline uses can
// only be made current. Delete stays on for STANDARD and does nothing.
void CMlineStyleDialog::OnListSelChange() {
    const CStdStr<wchar_t> name = selectedName();
    const bool isUsed = isStyleUsed(name);
    const bool isCurrent = name.CompareNoCase(m_currentStyle) == 0;
    const bool isStandard = name.CompareNoCase(L"STANDARD") == 0;
    GetDlgItem(kManagerSetCurrent)->EnableWindow(!isCurrent);
    GetDlgItem(kManagerModify)->EnableWindow(!isUsed);
    GetDlgItem(kManagerRename)->EnableWindow(!isUsed && !isStandard);
    GetDlgItem(kManagerDelete)->EnableWindow(!isUsed && !isCurrent);
    showDescription(name);
    DrawCurStylePreview();
}

void CMlineStyleDialog::showDescription(const CStdStr<wchar_t>& name) {
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, styleUnder(m_dictionaryId, name), kForRead);
    if (style != nullptr) {
        GetDlgItem(kManagerDescription)->SetWindowTextW(style->description());
        style->close();
    }
}

void CMlineStyleDialog::DrawCurStylePreview() {
    long entry[2] = {0, 0};
    if (!findEntry(m_dictionaryName, selectedName(), entry)) {
        return;
    }
    KdDbObjectId id;
    kddbGetObjectId(id, entry);
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, id, kForRead);
    if (style != nullptr) {
        PaintPreview(style);
        style->close();
    }
}

void CMlineStyleDialog::PaintPreview(KdDbMlineStyle* /*style*/) {}

void CMlineStyleDialog::OnSize(unsigned /*type*/, int /*width*/, int /*height*/) {
    m_resizer.Resize(this);
}

void CMlineStyleDialog::OnSizing(unsigned /*edge*/, tagRECT* rectangle) {
    m_resizer.OnSizing(this, rectangle);
}

void CMlineStyleDialog::OnPaint() {}

void CMlineStyleDialog::OnOK() {
    storePosition(*this, kPlace);
    CDialog::OnOK();
}
