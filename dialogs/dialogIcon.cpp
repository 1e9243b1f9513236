#include "dialogIcon.h"

#include "CWnd.h"
#include "HICON.h"

void setDialogIcon(CWnd& dialog, int kind) {
    constexpr unsigned kHostIcon = 128;
    dialog.SetIcon(LoadIconW(GetModuleHandleW(L"ORVEXRes.dll"), kHostIcon), kind);
}
