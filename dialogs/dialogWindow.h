#pragma once

#include "CWnd.h"

// What the dialogs have in common as windows.
namespace mledit {

// The logic that a view is tied to; null for a view without one, for another kind of logic, and
// when the dialog's loop has ended.
template <class Logic>
Logic* logicOf(HWND view) {
    return dynamic_cast<Logic*>(CWnd::FromHandle(view));
}

// Gives a dialog the host's icon. `kind` is passed on to the window: 0 or 1.
void setDialogIcon(CWnd& dialog, int kind);

// Where a dialog stood when it was last accepted: four integers in the application's profile,
// section "Settings", under `prefix` with "Left", "Top", "Right" and "Bottom".

// Moves the dialog there; a single missing value leaves it at its default position.
void restorePosition(CWnd& dialog, const wchar_t* prefix);

void storePosition(const CWnd& dialog, const wchar_t* prefix);

} // namespace mledit
