#pragma once

#include "KdRxObject.h"

#include <set>

// Keeps what loaded modules ask for themselves. Both operations are harmless when repeated or for
// a handle that nobody knows.
class KdRxDynamicLinker : public KdRxObject {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;
    static KdRxDynamicLinker* cast(KdRxObject* object);

    // Lifts the lock against unloading.
    void unlockApplication(void* application);
    // Declares the module able to serve several open documents.
    void registerAppMDIAware(void* application);

    [[nodiscard]] bool isLocked(void* application) const {
        return !m_unlocked.contains(application);
    }
    void forget(void* application);

private:
    std::set<void*> m_unlocked;
    std::set<void*> m_mdiAware;
};
