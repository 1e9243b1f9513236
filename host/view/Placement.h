#pragma once

#include "KdGePoint3d.h"
#include "KdGeVector3d.h"

namespace orvex {

// Where a block's space lies in another one: the place of its origin, and its axes there.
struct Placement {
    KdGePoint3d origin;
    KdGeVector3d x{1.0, 0.0, 0.0};
    KdGeVector3d y{0.0, 1.0, 0.0};
    KdGeVector3d z{0.0, 0.0, 1.0};

    [[nodiscard]] KdGeVector3d turn(const KdGeVector3d& v) const {
        return x * v.x + y * v.y + z * v.z;
    }
    [[nodiscard]] KdGePoint3d place(const KdGePoint3d& p) const {
        return origin + turn({p.x, p.y, p.z});
    }
    // First the inner placement, then this one.
    [[nodiscard]] Placement around(const Placement& inner) const {
        return {place(inner.origin), turn(inner.x), turn(inner.y), turn(inner.z)};
    }
};

} // namespace orvex
