#pragma once

#include "HINSTANCE.h"

// The commands. Each opens the resource library for itself and ends silently without it.
void cmd_vomlstyle();   // MLSTYLE
void cmd_vomledit();    // MLEDIT
void cmd_vomleditcli(); // -MLEDIT

// Runs one tool, 1 to 12, on a fresh CMlineEdit, with its texts from `resources`. Any other number
// runs none. What a tool can take back goes with it.
void mlineEditOperation(int tool, HINSTANCE resources);
