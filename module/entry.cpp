// What the host's loader looks up in the module file by exact names.

#include "entry.h"

#include "KdRxDictionary.h"
#include "KdRxDynamicLinker.h"
#include "kdrxRegistry.h"
#include "moduleEntry.h"
#include "moduleResources.h"
#include "registration.h"
#include "resourceLibrary.h"

HINSTANCE hAppModule = nullptr;
HINSTANCE hResModule = nullptr;
CKdExtensionModule theExtensionDLL;

bool CKdExtensionModule::AttachInstance(HINSTANCE module) {
    if (m_attached) {
        return false;
    }
    m_attached = true;
    m_defaultResourceHandle = AfxGetResourceHandle();
    m_moduleResourceHandle = module;
    return true;
}

void CKdExtensionModule::DetachInstance() {
    m_attached = false;
}

namespace {

KdRxDynamicLinker* dynamicLinker() {
    return KdRxDynamicLinker::cast(kdrxSysRegistry()->at(L"DynamicLinker"));
}

int load(void* application) {
    hResModule = loadResourceDll(mledit::kResourceLibrary);
    if (hResModule == nullptr) {
        return kLoadFailed;
    }
    if (KdRxDynamicLinker* const linker = dynamicLinker()) {
        linker->unlockApplication(application);
    }
    if (KdRxDynamicLinker* const linker = dynamicLinker()) {
        linker->registerAppMDIAware(application);
    }
    initApp();
    return kEntryDone;
}

} // namespace

#pragma GCC visibility push(default)
extern "C" {

int DllMain(HINSTANCE module, int reason, void* /*reserved*/) {
    if (reason == kReasonAttach) {
        hAppModule = module;
        theExtensionDLL.AttachInstance(module);
    } else if (reason == kReasonDetach) {
        theExtensionDLL.DetachInstance();
    }
    return 1;
}

int kdrxEntryPoint(int message, void* application) {
    switch (message) {
    case kMessageLoad:
        return load(application);
    case kMessageUnload:
        unloadApp();
        return kEntryDone;
    default: // message 14 and all others ask for nothing
        return kEntryDone;
    }
}

int kdrxGetApiVersion(int /*unused*/) {
    return kApiVersion;
}
}
#pragma GCC visibility pop
