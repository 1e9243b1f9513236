#pragma once

#include "KdGePoint3d.h"
#include "KdGeVector3d.h"
#include "geometry.h"

#include <span>
#include <vector>

namespace orvex {

// A miter and the sine of its angle to the axis: an element at the distance d from the chain
// crosses it at d / sine.
struct Miter {
    KdGeVector3d direction; // unit
    double sine = 1.0;
};

// The side that positive offsets lie on; both arguments are units at a right angle.
[[nodiscard]] inline KdGeVector3d leftOf(const KdGeVector3d& axis, const KdGeVector3d& normal) {
    return cross(normal, axis);
}

// Units along the segments that leave each point; the last one of an open chain is as the one
// before. Of points that coincide it is zero.
[[nodiscard]] std::vector<KdGeVector3d> chainAxes(std::span<const KdGePoint3d> points, bool closed);

// At an open end, `angle` radians from the axis counter-clockwise; square for an angle at which
// there is no end.
[[nodiscard]] Miter endMiter(const KdGeVector3d& axis, const KdGeVector3d& normal, double angle);

// Whether the second segment runs along the first, against it.
[[nodiscard]] bool turnsStraightBack(const KdGeVector3d& incoming, const KdGeVector3d& outgoing,
                                     const KdGeVector3d& normal);

// Between two segments: it halves the angle. Where the chain turns straight back, it is square to
// the outgoing one.
[[nodiscard]] Miter jointMiter(const KdGeVector3d& incoming, const KdGeVector3d& outgoing,
                               const KdGeVector3d& normal);

} // namespace orvex
