#pragma once

// Plain records of the window layer. Lengths and places are pixels.

class QWidget;

// A window is its Qt widget.
using HWND = QWidget*;

struct tagPOINT {
    int x = 0;
    int y = 0;
};

struct tagSIZE {
    int cx = 0;
    int cy = 0;
};

// Right and bottom lie just outside.
struct tagRECT {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

// A key press on its way to a dialog.
struct tagMSG {
    HWND hwnd = nullptr;
    unsigned message = 0;     // kKeyDownMessage
    unsigned long wParam = 0; // the key: 13 Enter, 32 blank, 27 Escape
    long lParam = 0;
};

inline constexpr unsigned kKeyDownMessage = 256;

struct tagNMHDR {
    HWND hwndFrom = nullptr;
    unsigned long idFrom = 0;
    unsigned code = 0;
};

// What a window is made with; handed around as a null pointer only.
struct tagCREATESTRUCTW {
    void* lpCreateParams = nullptr;
    HWND hwndParent = nullptr;
    int x = 0;
    int y = 0;
    int cx = 0;
    int cy = 0;
    const wchar_t* lpszName = nullptr;
};

// An item of a header. `mask` says which fields count: 1 width, 2 text, 4 format, 8 lParam.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
struct _HD_ITEMW {
    unsigned mask = 0;
    int cxy = 0;
    wchar_t* pszText = nullptr;
    int cchTextMax = 0; // room in pszText with the terminator, for reading
    int fmt = 0;
    long lParam = 0;
};
