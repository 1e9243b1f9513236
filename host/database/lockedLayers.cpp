#include "lockedLayers.h"

#include "DatabaseCore.h"
#include "KdDbEntity.h"
#include "KdDbLayerTable.h"

namespace orvex {

bool isLayerLocked(DatabaseCore& core, std::wstring_view layer) {
    KdDbStub* const stub = core.findLayer(layer);
    const KdDbObject* const record = stub != nullptr ? core.load(*stub) : nullptr;
    return record != nullptr && record->isKindOf(KdDbLayerTableRecord::desc()) &&
           static_cast<const KdDbLayerTableRecord*>(record)->isLocked();
}

bool isOnLockedLayer(KdDbStub& entity) {
    const KdDbObject* const object = entity.database->load(entity);
    return object != nullptr && object->isKindOf(KdDbEntity::desc()) &&
           isLayerLocked(*entity.database, static_cast<const KdDbEntity*>(object)->layer());
}

} // namespace orvex
