#include "EntityReader.h"

#include "DatabaseCore.h"
#include "KdDbMline.h"
#include "ObjectTable.h"
#include "PlainEntity.h"

namespace orvex {

namespace {

bool isMline(const KdDbEntity& entity) {
    return entity.isKindOf(KdDbMline::desc());
}

std::shared_ptr<const MlineContent> mlineContent(const KdDbEntity& mline) {
    return std::static_pointer_cast<const MlineContent>(mline.content());
}

// An entity that the host made; null for any other.
const PlainEntity* plainOf(const KdDbEntity& entity) {
    return entity.isKindOf(PlainEntity::desc()) ? static_cast<const PlainEntity*>(&entity)
                                                : nullptr;
}

EntityGeometry geometryOf(const KdDbStub& stub, const KdDbEntity& entity) {
    if (isMline(entity)) {
        return mlineContent(entity);
    }
    if (const auto* const plain = plainOf(entity)) {
        return plain->plain().shape;
    }
    const ObjectSource* source = stub.database->objects().source();
    const bool inFile = source != nullptr && stub.record != kNoRecord;
    return inFile ? source->shapeOf(stub) : EntityShape{};
}

} // namespace

EntityReading readEntity(const KdDbEntity& entity) {
    EntityReading reading;
    reading.entity = &entity;
    if (isMline(entity)) {
        reading.geometry = mlineContent(entity);
    }
    return reading;
}

std::optional<EntityReading> readEntity(const KdDbStub& stub) {
    const bool isEntity = stub.kind == ObjectKind::mline || stub.kind == ObjectKind::entity;
    if (stub.erased || !isEntity) {
        return std::nullopt;
    }
    EntityReading reading;
    const KdDbObject* object = stub.object.get();
    ObjectSource* const source = stub.database->objects().source();
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
