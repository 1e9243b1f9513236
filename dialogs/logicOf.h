#pragma once

#include "CWnd.h"

// The logic that a view is tied to; null for a view without one, for another kind of logic, and
// when the dialog's loop has ended.
template <class Logic>
Logic* logicOf(HWND view) {
    return dynamic_cast<Logic*>(CWnd::FromHandle(view));
}
