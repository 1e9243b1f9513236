#pragma once

#include "HINSTANCE.h"

// What an extension module remembers of its loading.
class CKdExtensionModule {
public:
    // True when it attached; false, and nothing changes, when it was attached already.
    bool AttachInstance(HINSTANCE module);
    void DetachInstance();

    bool m_attached = false;                     // between attach and detach
    HINSTANCE m_defaultResourceHandle = nullptr; // the host's at the moment of attach
    HINSTANCE m_moduleResourceHandle = nullptr;  // the one given to attach
};

// The module's exported objects; they live from load to the end of the process.

#pragma GCC visibility push(default)
extern HINSTANCE hAppModule; // this module, set at attach
// The resource library opened at load, null until then and never released: command names stay
// readable to the end.
extern HINSTANCE hResModule;
extern CKdExtensionModule theExtensionDLL;
#pragma GCC visibility pop
