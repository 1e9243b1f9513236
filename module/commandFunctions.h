#pragma once

// The command functions. Each opens the resource library for itself and ends silently without it.
void cmd_vomlstyle();   // MLSTYLE
void cmd_vomledit();    // MLEDIT
void cmd_vomleditcli(); // -MLEDIT
