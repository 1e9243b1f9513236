#pragma once

#include "HINSTANCE.h"

class KdRxDictionary;
class KdRxObject;

// The host's system dictionary, never null. From start to end it holds "DynamicLinker",
// "ServiceDictionary" and "RVEX_REGISTERED_COMMANDS".
KdRxDictionary* kdrxSysRegistry();

// Services live in "ServiceDictionary", which owns them.
bool kdrxServiceIsRegistered(const wchar_t* name);
KdRxObject* kdrxRegisterService(const wchar_t* name);

// Writes the path of a module, terminated even when it is cut, and returns its length without the
// terminator; 0 for an unknown handle. `size` in characters.
unsigned GetModuleFileNameW(HINSTANCE module, wchar_t* path, unsigned size);
