#include "EntityReader.h"

#include "DatabaseCore.h"
#include "KdDbMline.h"

namespace orvex {

namespace {

EntityGeometry geometryOf(const KdDbStub& stub, const KdDbEntity& entity) {
    if (entity.isKindOf(KdDbMline::desc())) {
        return std::static_pointer_cast<const MlineContent>(entity.content());
    }
    const ObjectSource* source = stub.database->source();
    const bool inFile = source != nullptr && stub.record != kNoRecord;
    return inFile ? source->shapeOf(stub) : EntityShape{};
}

} // namespace

std::optional<EntityReading> readEntity(const KdDbStub& stub) {
    const bool isEntity = stub.kind == ObjectKind::mline || stub.kind == ObjectKind::entity;
    if (stub.erased || !isEntity) {
        return std::nullopt;
    }
    EntityReading reading;
    const KdDbObject* object = stub.object.get();
    ObjectSource* const source = stub.database->source();
    if (object == nullptr && source != nullptr && stub.record != kNoRecord) {
        reading.temporary = source->load(stub);
        object = reading.temporary.get();
    }
    if (object == nullptr || !object->isKindOf(KdDbEntity::desc())) {
        return std::nullopt;
    }
    reading.entity = static_cast<const KdDbEntity*>(object);
    reading.geometry = geometryOf(stub, *reading.entity);
    return reading;
}

} // namespace orvex
