#pragma once

class CWnd;

// Where a dialog stood when it was last accepted: four integers in the application's profile,
// section "Settings", under `prefix` with "Left", "Top", "Right" and "Bottom".

// Moves the dialog there; a single missing value leaves it at its default place.
void restoreDialogPlace(CWnd& dialog, const wchar_t* prefix);

void storeDialogPlace(const CWnd& dialog, const wchar_t* prefix);
