#include "dialogPlace.h"

#include "CRect.h"
#include "CStdStr.h"
#include "CWinApp.h"
#include "CWnd.h"

namespace {

constexpr const wchar_t* kSection = L"Settings";
constexpr int kNotStored = -10000; // and no place at which a dialog can have been left

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

void restoreDialogPlace(CWnd& dialog, const wchar_t* prefix) {
    CRect place;
    for (const Side& side : kSides) {
        const int stored =
            AfxGetApp()->GetProfileInt(kSection, keyOf(prefix, side).c_str(), kNotStored);
        if (stored == kNotStored) {
            return;
        }
        place.*side.value = stored;
    }
    dialog.MoveWindow(place, true);
}

void storeDialogPlace(const CWnd& dialog, const wchar_t* prefix) {
    CRect place;
    dialog.GetWindowRect(&place);
    for (const Side& side : kSides) {
        AfxGetApp()->WriteProfileInt(kSection, keyOf(prefix, side).c_str(), place.*side.value);
    }
}
