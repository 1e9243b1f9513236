#pragma once

class CWnd;

// Gives a dialog the host's icon. `kind` is passed on to the window: 0 or 1.
void setDialogIcon(CWnd& dialog, int kind);
