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
