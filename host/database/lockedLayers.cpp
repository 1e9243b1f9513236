#include "lockedLayers.h"

#include "DatabaseCore.h"
#include "KdDbEntity.h"
#include "KdDbLayerTable.h"
#include "WellKnownObjects.h"

namespace orvex {

namespace {

// Null for one that the drawing doesn't have.
const KdDbLayerTableRecord* layerNamed(DatabaseCore& core, std::wstring_view name) {
    KdDbStub* const stub = core.wellKnown().findLayer(name);
    const KdDbObject* const record = stub != nullptr ? core.load(*stub) : nullptr;
    return record != nullptr && record->isKindOf(KdDbLayerTableRecord::desc())
               ? static_cast<const KdDbLayerTableRecord*>(record)
               : nullptr;
}

} // namespace

bool isLayerLocked(DatabaseCore& core, std::wstring_view layer) {
    const KdDbLayerTableRecord* const record = layerNamed(core, layer);
    return record != nullptr && record->isLocked();
}

bool isLayerEditable(DatabaseCore& core, std::wstring_view layer) {
    const KdDbLayerTableRecord* const record = layerNamed(core, layer);
    return record == nullptr || !(record->isLocked() || record->isOff() || record->isFrozen());
}

bool isOnLockedLayer(KdDbStub& entity) {
    const KdDbObject* const object = entity.database->load(entity);
    return object != nullptr && object->isKindOf(KdDbEntity::desc()) &&
           isLayerLocked(*entity.database, static_cast<const KdDbEntity*>(object)->layer());
}

} // namespace orvex
