#include "KdRxDynamicLinker.h"

KdRxClass* KdRxDynamicLinker::desc() {
    static KdRxClass description(L"KdRxDynamicLinker", KdRxObject::desc());
    return &description;
}

KdRxClass* KdRxDynamicLinker::isA() const {
    return desc();
}

KdRxDynamicLinker* KdRxDynamicLinker::cast(KdRxObject* object) {
    return object != nullptr && object->isKindOf(desc()) ? static_cast<KdRxDynamicLinker*>(object)
                                                         : nullptr;
}

void KdRxDynamicLinker::unlockApplication(void* application) {
    m_unlocked.insert(application);
}

void KdRxDynamicLinker::registerAppMDIAware(void* application) {
    m_mdiAware.insert(application);
}

void KdRxDynamicLinker::forget(void* application) {
    m_unlocked.erase(application);
    m_mdiAware.erase(application);
}
