#include "KdRxObject.h"

KdRxClass* KdRxObject::desc() {
    static KdRxClass description(L"KdRxObject", nullptr);
    return &description;
}

KdRxClass* KdRxObject::isA() const {
    return desc();
}

Status KdRxObject::copyFrom(const KdRxObject* source) {
    if (source == nullptr) {
        return Status::invalidInput;
    }
    return source->isKindOf(isA()) ? Status::done : Status::wrongClass;
}
