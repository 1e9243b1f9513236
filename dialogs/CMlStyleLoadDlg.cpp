#include "CMlStyleLoadDlg.h"

#include "CDataExchange.h"
#include "CMlStyleLoadDlgView.h"
#include "CWinApp.h"
#include "KdDbDictionary.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "controlNumbers.h"
#include "dialogWindow.h"
#include "fileChooser.h"
#include "hostFolders.h"
#include "hostHeap.h"
#include "kddbObjects.h"
#include "promptStatus.h"
#include "resourceLibrary.h"
#include "styleAccessors.h"
#include "styleLibraryReader.h"
#include "styleNames.h"
#include "textNumbers.h"

#include <memory>

using namespace mledit;

namespace {

constexpr unsigned kResource = 108;
constexpr const wchar_t* kPlace = L"MlstyleLoadDlgPos";
constexpr const wchar_t* kSection = L"Settings";
constexpr const wchar_t* kFileKey = L"MlstyleFile";

CStdStr<wchar_t> defaultLibrary() {
    CStdStr<wchar_t> path;
    path.Format(L"%ls%ls", kddbHostApplicationServices()->rootFolder(), L"Support/ORVEX.mln");
    return path;
}

// Two lines by layer, 0.5 to each side.
std::unique_ptr<KdDbMlineStyle> makeStyle(const wchar_t* name) {
    auto style = std::make_unique<KdDbMlineStyle>();
    style->initMlineStyle();
    style->setName(name);
    style->setDescription(L"");
    constexpr int kCount = 2;
    SetNumElements(style.get(), kCount);
    std::wstring byLayer = L"BYLAYER";
    wchar_t* linetypes[kCount] = {byLayer.data(), byLayer.data()};
    KdDocument* const document = curDoc();
    SetElemLtype(style.get(), linetypes, kCount,
                 document != nullptr ? document->database() : nullptr);
    constexpr double kOffsets[kCount] = {0.5, -0.5};
    SetElemOffset(style.get(), kOffsets, kCount);
    int colors[kCount] = {256, 256};
    SetElemColor(style.get(), colors, kCount);
    return style;
}

// Puts a new style into a dictionary that is open for writing; a null id when it isn't taken.
KdDbObjectId addStyle(KdDbDictionary& dictionary, const wchar_t* name) {
    std::unique_ptr<KdDbMlineStyle> style = makeStyle(name);
    KdDbObjectId id;
    dictionary.setAt(name, style.get(), id);
    if (!id.isNull()) {
        style.release()->close(); // the database's from now on
    }
    return id;
}

} // namespace

CMlStyleLoadDlg::CMlStyleLoadDlg(CWnd* parent) : CDialog(kResource, parent) {
    new VOUI::CMlStyleLoadDlg(nullptr, this); // ties itself to this and goes with it
}

void CMlStyleLoadDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kLoadStyleList, m_list);
}

int CMlStyleLoadDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    GetDlgItem(kLoadMessage)->SetWindowTextW(L"");
    const CStdStr<wchar_t> last = AfxGetApp()->GetProfileString(kSection, kFileKey, L"");
    GetDlgItem(kLoadFileName)->SetWindowTextW(last.IsEmpty() ? L"ORVEX.mln" : last.c_str());
    std::wstring path = (last.IsEmpty() ? defaultLibrary() : last).text();
    SetListStyleName(path.data());
    restorePosition(*this, kPlace);
    GetDlgItem(kAcceptButton)->EnableWindow(false); // until a style is selected
    return 1;
}

void CMlStyleLoadDlg::SetListStyleName(wchar_t* path) {
    const auto names = listLibraryStyles(path);
    if (!names) {
        return;
    }
    m_list.ResetContent();
    for (const CStdStr<wchar_t>& name : *names) {
        m_list.AddString(name);
    }
    GetDlgItem(kLoadFileName)->SetWindowTextW(path);
    m_file = path;
    if (!names->empty()) {
        GetDlgItem(kAcceptButton)->EnableWindow(false);
    }
}

void CMlStyleLoadDlg::OnLoadFileStyle() {
    const CStdStr<wchar_t> start = defaultLibrary();
    constexpr unsigned kTitle = 26; // in the host's library, which may have none
    constexpr int kExistingFile = 64;
    const CStdStr<wchar_t> title =
        velaManagerResourceString(kTitle, L"Load Multiline Style From File");
    resbuf chosen;
    if (kdedGetFileD(title, start, L"mln", kExistingFile, &chosen) != kPromptNormal) {
        return;
    }
    const std::unique_ptr<wchar_t, decltype(&rvex_free)> path(chosen.resval.rstring, rvex_free);
    SetListStyleName(path.get());
    // The user's choice is remembered at once, though the file may not be readable.
    AfxGetApp()->WriteProfileString(kSection, kFileKey, path.get());
}

void CMlStyleLoadDlg::OnSelectChanged() {
    GetDlgItem(kAcceptButton)->EnableWindow(m_list.GetSelCount() != 0);
}

void CMlStyleLoadDlg::OnDbClick() {
    OnOK();
}

void CMlStyleLoadDlg::OnOK() {
    if (m_list.GetSelCount() == 0) {
        return;
    }
    m_list.GetText(m_list.GetCurSel(), m_chosenName);
    if (isStyleUsed(m_chosenName)) {
        CStdStr<wchar_t> text;
        text.LoadStringW(texts::kStyleInUse);
        GetDlgItem(kLoadMessage)->SetWindowTextW(text);
        return;
    }
    if (!m_chosenName.IsEmpty()) {
        AddStyleToDrw();
    }
    storePosition(*this, kPlace);
    CDialog::OnOK();
}

bool CMlStyleLoadDlg::AddStyleToDrw() {
    KdDbDictionary* dictionary = nullptr;
    kddbOpenObject(dictionary, m_dictionaryId, kForWrite);
    if (dictionary == nullptr) {
        return false;
    }
    dictionary->getAt(m_chosenName, m_styleId);
    if (m_styleId.isNull()) {
        m_styleId = addStyle(*dictionary, m_chosenName);
    }
    dictionary->close();
    return ModifyStyle();
}

bool CMlStyleLoadDlg::ModifyStyle() {
    KdDbMlineStyle* style = nullptr;
    kddbOpenObject(style, m_styleId, kForWrite);
    if (style == nullptr || !applyLibraryStyle(m_file, m_chosenName, *style)) {
        return false;
    }
    style->close();
    return true;
}

bool CMlStyleLoadDlg::PreTranslateMessage(tagMSG* message) {
    constexpr unsigned kFirst = 256; // of the messages of the keyboard and around it
    constexpr unsigned kLast = 511;
    constexpr unsigned long kEnter = 13;
    constexpr unsigned long kBlank = 32;
    if (message->message >= kFirst && message->message <= kLast &&
        (message->wParam == kEnter || message->wParam == kBlank)) {
        OnCancel();
        return true;
    }
    return CDialog::PreTranslateMessage(message);
}
