#pragma once

#include "CPtrArray.h"
#include "CRect.h"

class CWnd;

// Edges of a dialog to which an item is anchored.
inline constexpr unsigned RESIZE_LOCKLEFT = 1;
inline constexpr unsigned RESIZE_LOCKRIGHT = 2;
inline constexpr unsigned RESIZE_LOCKTOP = 4;
inline constexpr unsigned RESIZE_LOCKBOTTOM = 8;
inline constexpr unsigned RESIZE_SHOWHIDE = 16;
inline constexpr unsigned RESIZE_LOCKALL = 15;
inline constexpr unsigned RESIZE_LOCKTOPLEFT = 5;
inline constexpr unsigned RESIZE_LOCKBOTTOMRIGHT = 10;

enum RESIZE_GAP_TYPEGAP : int { RESIZE_GAP_HORIZONTAL = 0, RESIZE_GAP_VERTICAL = 1 };

// What is to become of a gap. It is kept and not used.
enum RESIZE_GAP_BEHAVIOR : int { RESIZE_GAP_KEEP = 0 };

struct DLGITEMINFO {
    unsigned flags = 0;
    HWND window = nullptr; // the view's
    CRect rectangle;       // client pixels of the dialog, when the item was added
};

struct DLGITEMGAP {
    HWND first = nullptr;
    HWND second = nullptr;
    int gap = 0; // pixels
    RESIZE_GAP_TYPEGAP type = RESIZE_GAP_HORIZONTAL;
    RESIZE_GAP_BEHAVIOR behaviour = RESIZE_GAP_KEEP;
};

// Knows how a dialog's items are anchored and the dialog's smallest size. Layouts move the items,
// so the anchors are a record only.
class CDlgItemResizer {
public:
    CDlgItemResizer() = default;
    CDlgItemResizer(const CDlgItemResizer&) = delete;
    CDlgItemResizer& operator=(const CDlgItemResizer&) = delete;
    virtual ~CDlgItemResizer();

    // The first item fixes the dialog's sizes. Flags 0 and an item without a window: nothing.
    void Add(CWnd* parent, int number, unsigned flags);
    void Add(CWnd* item, unsigned flags);

    // A gap of -1 pixels is measured between the two items as they stand.
    void SetGap(CWnd* first, CWnd* second, int gap, RESIZE_GAP_TYPEGAP type,
                RESIZE_GAP_BEHAVIOR behaviour);

    // Holds a dialog that the user drags to `rectangle` at its smallest size: the edge that is
    // being dragged stops, the one across stays. Screen pixels.
    void OnSizing(CWnd* parent, tagRECT* rectangle);

    void Resize(CWnd* parent); // layouts do it

    void SetInitial(tagSIZE size);
    void ClearData(); // forgets items and gaps, keeps the sizes

protected:
    CPtrArray m_items;   // of DLGITEMINFO, owned
    CPtrArray m_gaps;    // of DLGITEMGAP, owned
    CSize m_initialSize; // the dialog's client area when the first item was added; pixels
    CSize m_minimumSize; // its window then; pixels
};
