// What the buttons of the style manager do to the drawing.

#include "CMlineStyleDialog.h"

#include "CMlStyleLoadDlg.h"
#include "CMlstyleNewDlg.h"
#include "CMlstyleNewModDlg.h"
#include "CMlstyleRenameDlg.h"
#include "KdDbDictionary.h"
#include "KdDbMlineStyle.h"
#include "controlNumbers.h"
#include "fileChooser.h"
#include "hostFolders.h"
#include "hostHeap.h"
#include "kddbObjects.h"
#include "promptStatus.h"
#include "styleLibraryWriter.h"
#include "styleNames.h"
#include "systemVariables.h"
#include "textNumbers.h"

#include <algorithm>
#include <memory>
#include <utility>

using namespace mledit;

namespace {

constexpr int kAccepted = 1; // a dialog's result

// Closes a style or a dictionary; there may be none.
struct Closer {
    void operator()(KdDbObject* object) const { object->close(); }
};
template <class Object>
using Open = std::unique_ptr<Object, Closer>;

template <class Object>
Open<Object> open(KdDbObjectId id, int mode) {
    Object* object = nullptr;
    kddbOpenObject(object, id, mode);
    return Open<Object>(object);
}

// Gives the style under a key a new key and that name; false when there is none to rename.
bool renameStyle(KdDbObjectId dictionaryId, const wchar_t* key, const wchar_t* name) {
    const auto dictionary = open<KdDbDictionary>(dictionaryId, kForWrite);
    if (dictionary == nullptr) {
        return false;
    }
    KdDbObjectId id;
    dictionary->getAt(key, id);
    auto style = open<KdDbMlineStyle>(id, kForWrite);
    if (style == nullptr) {
        return false;
    }
    style->setName(name);
    style.reset();
    dictionary->setName(key, name);
    return true;
}

bool removeStyle(KdDbObjectId dictionaryId, const wchar_t* key) {
    const auto dictionary = open<KdDbDictionary>(dictionaryId, kForWrite);
    if (dictionary == nullptr) {
        return false;
    }
    dictionary->remove(key);
    return true;
}

} // namespace

void CMlineStyleDialog::appendAndSelect(const CStdStr<wchar_t>& name) {
    m_list.SetCurSel(m_list.AddString(name));
}

void CMlineStyleDialog::SetCurStyle(CStdStr<wchar_t> name) {
    resbuf value;
    value.restype = kResultText;
    if (kdutNewString(name, value.resval.rstring) != Status::done) {
        return;
    }
    if (kdedSetVar(L"CMLSTYLE", &value) == kPromptNormal) {
        GetDlgItem(kManagerCurrentStyle)->SetWindowTextW(name);
        GetDlgItem(kManagerSetCurrent)->EnableWindow(false);
        m_currentStyle = std::move(name);
        OnListSelChange();
    }
    kdutDelString(value.resval.rstring);
}

void CMlineStyleDialog::OnSetCurStyle() {
    SetCurStyle(selectedName());
    GetDlgItem(kManagerNew)->SetFocus();
}

void CMlineStyleDialog::OnListDbClick() {
    const CStdStr<wchar_t> name = selectedName();
    if (!(name == m_currentStyle)) {
        SetCurStyle(name);
    }
}

void CMlineStyleDialog::OnAddStyle() {
    CMlstyleNewDlg naming(nullptr);
    naming.m_startWith = selectedName();
    naming.m_dictionaryId = m_dictionaryId;
    if (naming.DoModal() != kAccepted) {
        return;
    }
    CMlstyleNewModDlg making(nullptr);
    making.m_styleName = naming.m_startWith;
    making.m_newName = naming.m_newName;
    making.m_dictionaryId = m_dictionaryId;
    making.m_mode = CMlstyleNewModDlg::modeNew;
    if (making.DoModal() == kAccepted) {
        appendAndSelect(naming.m_newName);
        OnListSelChange();
    } else {
        DrawCurStylePreview();
    }
}

void CMlineStyleDialog::OnModifyStyle() {
    CMlstyleNewModDlg changing(nullptr);
    changing.m_styleName = selectedName();
    changing.m_dictionaryId = m_dictionaryId;
    changing.m_mode = CMlstyleNewModDlg::modeModify;
    if (changing.DoModal() == kAccepted) {
        OnListSelChange();
    } else {
        DrawCurStylePreview();
    }
}

void CMlineStyleDialog::OnRenameStyle() {
    if (m_list.GetSelCount() == 0) {
        return;
    }
    CMlstyleRenameDlg naming(nullptr);
    naming.m_oldName = selectedName();
    naming.m_dictionaryId = m_dictionaryId;
    if (naming.DoModal() != kAccepted || m_list.FindStringExact(-1, naming.m_newName) != -1) {
        return;
    }
    if (!renameStyle(m_dictionaryId, naming.m_oldName, naming.m_newName)) {
        return;
    }
    m_list.DeleteString(m_list.GetCurSel());
    appendAndSelect(naming.m_newName);
    // Whichever style it was, and CMLSTYLE is left alone: from now on the label may show a name
    // that the drawing doesn't draw with.
    m_currentStyle = naming.m_newName;
    GetDlgItem(kManagerCurrentStyle)->SetWindowTextW(m_currentStyle);
    OnListSelChange();
}

void CMlineStyleDialog::OnDeleteStyle() {
    if (m_list.GetSelCount() == 0) {
        return;
    }
    const CStdStr<wchar_t> name = selectedName();
    if (name.CompareNoCase(L"STANDARD") == 0) {
        return;
    }
    constexpr unsigned kYesOrNo = 36;
    constexpr int kYes = 6;
    CStdStr<wchar_t> question;
    question.LoadStringW(texts::kDeleteQuestion);
    question = question + L"\"" + name + L"\"?";
    if (MessageBoxW(question, L"ORVEX", kYesOrNo) != kYes) {
        return;
    }
    if (!removeStyle(m_dictionaryId, name)) {
        return;
    }
    const int index = m_list.GetCurSel();
    m_list.DeleteString(index);
    m_list.SetCurSel(std::max(index - 1, 0));
    m_list.SetFocus();
    OnListSelChange();
}

// A loaded style is listed, but it is STANDARD that is selected then, and so it is when nothing
// was loaded.
void CMlineStyleDialog::OnLoadStyle() {
    CMlStyleLoadDlg loading(nullptr);
    loading.m_dictionaryId = m_dictionaryId;
    if (loading.DoModal() == kAccepted && !loading.m_chosenName.IsEmpty() &&
        m_list.FindStringExact(-1, loading.m_chosenName) == -1) {
        m_list.AddString(loading.m_chosenName);
    }
    if (const int standard = m_list.FindStringExact(-1, L"standard"); standard != -1) {
        m_list.SetCurSel(standard);
        OnListSelChange();
    }
}

bool CMlineStyleDialog::IsContainStr(const CStdStr<wchar_t>& line, const wchar_t* text) {
    return line.CompareNoCase(text) == 0;
}

void CMlineStyleDialog::OnSaveStyle() {
    if (m_list.GetSelCount() == 0) {
        return;
    }
    constexpr int kFileToSaveInto = 3;
    CStdStr<wchar_t> title;
    title.LoadStringW(texts::kSaveTitle);
    CStdStr<wchar_t> start;
    start.Format(L"%ls%ls", kddbHostApplicationServices()->rootFolder(), L"Support/");
    resbuf chosen;
    if (kdedGetFileD(title, start, L"mln", kFileToSaveInto, &chosen) != kPromptNormal) {
        return;
    }
    const std::unique_ptr<wchar_t, decltype(&rvex_free)> path(chosen.resval.rstring, rvex_free);
    const CStdStr<wchar_t> name = selectedName();
    const auto style = open<KdDbMlineStyle>(styleUnder(m_dictionaryId, name), kForRead);
    saveLibraryStyle(path.get(), name, style.get());
}
