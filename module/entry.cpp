// What the host's loader looks up in the module file, by exact names, and the module's objects.

#include "KdRxDictionary.h"
#include "KdRxDynamicLinker.h"
#include "kdrxRegistry.h"
#include "moduleEntry.h"
#include "moduleObjects.h"
#include "registration.h"
#include "resourceLibrary.h"

[[gnu::visibility("default")]] HINSTANCE hAppModule = nullptr;
[[gnu::visibility("default")]] HINSTANCE hResModule = nullptr;
[[gnu::visibility("default")]] CKdExtensionModule theExtensionDLL;

namespace {

KdRxDynamicLinker* dynamicLinker() {
    return KdRxDynamicLinker::cast(kdrxSysRegistry()->at(L"DynamicLinker"));
}

int load(void* application) {
    hResModule = loadResourceDll(kResourceLibrary);
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

extern "C" {

[[gnu::visibility("default")]] int DllMain(HINSTANCE module, int reason, void* /*reserved*/) {
    if (reason == kReasonAttach) {
        hAppModule = module;
        theExtensionDLL.AttachInstance(module);
    } else if (reason == kReasonDetach) {
        theExtensionDLL.DetachInstance();
    }
    return 1;
}

[[gnu::visibility("default")]] int kdrxEntryPoint(int message, void* application) {
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

[[gnu::visibility("default")]] int kdrxGetApiVersion(int /*unused*/) {
    return kApiVersion;
}
}
