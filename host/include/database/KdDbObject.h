#pragma once

#include "KdDbHandle.h"
#include "KdDbObjectId.h"
#include "KdRxObject.h"

#include <memory>

namespace orvex {
class ObjectContent;
}

// An object that can live in a database. One in a database keeps its address as long as its
// drawing is open, closed or not; one outside (null id) belongs to whoever made it.
class KdDbObject : public KdRxObject {
public:
    KdDbObject() = default;
    ~KdDbObject() override;

    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    [[nodiscard]] KdDbObjectId objectId() const { return KdDbObjectId(m_stub); }
    [[nodiscard]] KdDbHandle handle() const;
    [[nodiscard]] KdDbObjectId ownerId() const;
    [[nodiscard]] bool isErased() const;

    // Ends an open. On a closed object it does nothing, since callers close more than they open.
    Status close();

    // Takes the object out of its drawing; undo brings it back.
    Status erase();

    // Everything but identity, as a value that shares memory until one side changes; null for an
    // object without a model of its own. Used by undo and saving.
    [[nodiscard]] virtual std::shared_ptr<const orvex::ObjectContent> content() const;
    // The content has to be of the object's own kind; anything else changes nothing.
    virtual Status setContent(const std::shared_ptr<const orvex::ObjectContent>& content);

    Status copyFrom(const KdRxObject* source) override;

protected:
    // Every setter calls it before it changes anything: undo, index and saving then know.
    void aboutToChange();

private:
    friend struct KdDbStub;
    KdDbStub* m_stub = nullptr;
};
