#pragma once

#include "Failure.h"
#include "MlineContent.h"

namespace orvex {

// A rigid motion: turns or mirrors about a base point, then shifts.
struct PlanMotion {
    KdGePoint3d base;
    KdGeVector3d x{1.0, 0.0, 0.0}; // where the world's axes go
    KdGeVector3d y{0.0, 1.0, 0.0};
    KdGeVector3d z{0.0, 0.0, 1.0};
    KdGeVector3d shift;
    bool mirrors = false;
};

PlanMotion shiftBy(const KdGeVector3d& shift);
// Counter-clockwise about an axis of length 1. Exact for multiples of 90 degrees about a world
// axis.
PlanMotion turnAbout(const KdGePoint3d& base, const KdGeVector3d& axis, double degrees);
// In the plane through two points along `normal`, which has length 1. Refuses a line without
// length, seen along it.
Result<PlanMotion> mirrorAt(const KdGePoint3d& first, const KdGePoint3d& second,
                            const KdGeVector3d& normal);

// The multiline moved as a whole, with its gaps and lists. A mirrored one has the negative scale,
// so that its elements change sides. Refuses what would lose the multiline's shape to rounding,
// what isn't finite, and a normal that isn't the same afterwards.
Result<MlineContent> movedBy(const MlineContent& mline, const PlanMotion& motion);

} // namespace orvex
