#pragma once

// What the host looks up in a module file, by these exact names:
//
//   int DllMain(HINSTANCE module, int reason, void* reserved)   reason 1 attach, 0 detach
//   int kdrxEntryPoint(int message, void* application)
//   int kdrxGetApiVersion(int)                                   always 1
//
// Order: static initialisers, DllMain attach, message load; at the end message unload, DllMain
// detach, and the file is closed. A load that answers `kLoadFailed` leaves no command behind and
// gets no unload message.
enum ModuleMessage : int { kMessageLoad = 1, kMessageUnload = 2 };
enum ModuleReason : int { kReasonDetach = 0, kReasonAttach = 1 };

constexpr int kEntryDone = 0;
constexpr int kLoadFailed = 3;
constexpr int kApiVersion = 1;
