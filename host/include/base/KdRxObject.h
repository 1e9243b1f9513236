#pragma once

#include "KdRxClass.h"
#include "Status.h"
#include "VoHeapOp.h"

// The root of the host's objects.
class KdRxObject : public VoHeapOp {
public:
    KdRxObject() = default;
    KdRxObject(const KdRxObject&) = delete;
    KdRxObject& operator=(const KdRxObject&) = delete;
    virtual ~KdRxObject() = default;

    static KdRxClass* desc();
    [[nodiscard]] virtual KdRxClass* isA() const;
    [[nodiscard]] bool isKindOf(const KdRxClass* ancestor) const {
        return isA()->isDerivedFrom(ancestor);
    }

    // Takes over the source's content bit for bit; identity (id, handle, owner) stays. A null
    // source or one of another class is refused and changes nothing.
    virtual Status copyFrom(const KdRxObject* source);
};
