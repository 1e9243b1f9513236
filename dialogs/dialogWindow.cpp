#include "dialogWindow.h"

#include "CRect.h"
#include "CStdStr.h"
#include "CWinApp.h"
#include "HICON.h"

namespace mledit {

namespace {

constexpr const wchar_t* kSection = L"Settings";
constexpr int kNotStored = -10000; // no dialog can have been left there

struct Side {
    const wchar_t* name;
    int tagRECT::*value;
};
constexpr Side kSides[] = {
    {L"Left", &tagRECT::left},
    {L"Top", &tagRECT::top},
    {L"Right", &tagRECT::right},
    {L"Bottom", &tagRECT::bottom},
};

CStdStr<wchar_t> keyOf(const wchar_t* prefix, const Side& side) {
    CStdStr<wchar_t> key = prefix;
    key += side.name;
    return key;
}

} // namespace

void setDialogIcon(CWnd& dialog, int kind) {
    constexpr unsigned kHostIcon = 128;
    dialog.SetIcon(LoadIconW(GetModuleHandleW(L"ORVEXRes.dll"), kHostIcon), kind);
}

void restorePosition(CWnd& dialog, const wchar_t* prefix) {
    CRect rectangle;
    for (const Side& side : kSides) {
        const int stored =
            AfxGetApp()->GetProfileInt(kSection, keyOf(prefix, side).c_str(), kNotStored);
        if (stored == kNotStored) {
            return;
        }
        rectangle.*side.value = stored;
    }
    dialog.MoveWindow(rectangle, true);
}

void storePosition(const CWnd& dialog, const wchar_t* prefix) {
    CRect rectangle;
    dialog.GetWindowRect(&rectangle);
    for (const Side& side : kSides) {
        AfxGetApp()->WriteProfileInt(kSection, keyOf(prefix, side).c_str(), rectangle.*side.value);
    }
}

} // namespace mledit
