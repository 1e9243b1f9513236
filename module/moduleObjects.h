#pragma once

#include "CKdExtensionModule.h"
#include "HINSTANCE.h"

// The module's objects that live from load to the end of the process; exported.

extern HINSTANCE hAppModule; // this module, set at attach
// The resource library opened at load, never released: command names stay readable to the end.
// Null till then.
extern HINSTANCE hResModule;
extern CKdExtensionModule theExtensionDLL;

constexpr const wchar_t* kResourceLibrary = L"OmxMLStyleRes.dll";
