#pragma once

#include "EntityShape.h"
#include "EntityTraits.h"
#include "KdDbEntity.h"
#include "KdDbStub.h"
#include "MlineContent.h"

#include <memory>
#include <optional>
#include <variant>

namespace orvex {

// What there is to draw of an entity: a multiline's values, or the shape of any other.
using EntityGeometry = std::variant<EntityShape, std::shared_ptr<const MlineContent>>;

// An entity as it is now. One that nobody has opened is read for this purpose only: looking at a
// drawing doesn't bring all of it into memory.
struct EntityReading {
    std::unique_ptr<KdDbObject> temporary; // null when the database has the object
    const KdDbEntity* entity = nullptr;
    EntityGeometry geometry;

    [[nodiscard]] const EntityTraits& traits() const { return entity->traits(); }
};

// Nothing for what can't be seen: an erased or opaque object, one that can't be read.
std::optional<EntityReading> readEntity(const KdDbStub& stub);
// One that no drawing has.
EntityReading readEntity(const KdDbEntity& entity);

} // namespace orvex
