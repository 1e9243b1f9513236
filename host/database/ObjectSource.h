#pragma once

#include "EntityShape.h"
#include "KdDbStub.h"

#include <memory>
#include <optional>

namespace orvex {

// Where a database gets its objects from: a drawing file, or nothing for one made in memory. The
// database asks at an object's first opening.
class ObjectSource {
public:
    virtual ~ObjectSource() = default;

    // A fresh object for a stub that has a record; null when it can't be read as its kind.
    [[nodiscard]] virtual std::unique_ptr<KdDbObject> load(const KdDbStub& stub) = 0;

    // What an entity without a model of its own looks like. Not kept: ask again when needed.
    [[nodiscard]] virtual EntityShape shapeOf(const KdDbStub& stub) const = 0;

    // The style of a multiline as its record names it, null for one that the drawing doesn't have;
    // nothing where only loading the multiline tells.
    [[nodiscard]] virtual std::optional<KdDbObjectId> styleOf(const KdDbStub& /*stub*/) const {
        return std::nullopt;
    }
};

} // namespace orvex
