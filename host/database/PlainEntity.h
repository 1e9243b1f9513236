#pragma once

#include "EntityShape.h"
#include "EntityTraits.h"
#include "KdDbEntity.h"
#include "KdDbObjectId.h"
#include "ObjectContent.h"

#include <memory>

namespace orvex {

// A line, an arc or a filled area that the host made itself.
struct PlainContent final : ObjectContent {
    std::shared_ptr<const EntityTraits> traits; // null: those that the entity has
    // A LineShape, a ConicShape that is a part of a circle counter-clockwise around the normal, or
    // a SolidShape.
    EntityShape shape;
    KdGeVector3d normal{0.0, 0.0, 1.0}; // unit; of the plane that arcs and areas lie in
    // What it was made of; once that is erased, this is in its groups and its place of the drawing
    // order. May be null.
    KdDbObjectId replaces;

    [[nodiscard]] bool equals(const ObjectContent& other) const override;
    [[nodiscard]] std::size_t memoryUse() const override;
};

// The entity with such a content. Nothing but its common traits can be edited.
class PlainEntity final : public KdDbEntity {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    [[nodiscard]] const PlainContent& plain() const { return *m_content; }

    [[nodiscard]] std::shared_ptr<const ObjectContent> content() const override;
    Status setContent(const std::shared_ptr<const ObjectContent>& content) override;

protected:
    void storeTraits(std::shared_ptr<const EntityTraits> traits) override;

private:
    std::shared_ptr<const PlainContent> m_content = std::make_shared<PlainContent>(); // never null
};

} // namespace orvex
