#include "chainMiter.h"

#include <cmath>

namespace orvex {

std::vector<KdGeVector3d> chainAxes(std::span<const KdGePoint3d> points, bool closed) {
    const std::size_t count = points.size();
    std::vector<KdGeVector3d> axes(count);
    for (std::size_t i = 0; i < count; ++i) {
        axes[i] = (points[(i + 1) % count] - points[i]).normalize();
    }
    if (!closed && count > 1) {
        axes.back() = axes[count - 2];
    }
    return axes;
}

Miter endMiter(const KdGeVector3d& axis, const KdGeVector3d& normal, double angle) {
    constexpr double kNothing = 1e-9;
    const KdGeVector3d left = leftOf(axis, normal);
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    // A right angle has no exact value in radians, and along the axis there is no end at all.
    if (std::abs(cosine) < kNothing || std::abs(sine) < kNothing) {
        return {left, 1.0};
    }
    return {axis * cosine + left * sine, sine};
}

bool turnsStraightBack(const KdGeVector3d& incoming, const KdGeVector3d& outgoing,
                       const KdGeVector3d& normal) {
    return (leftOf(incoming, normal) + leftOf(outgoing, normal)).isZeroLength();
}

// The sum of both left sides is the long diagonal of a rhombus: it halves the angle, and half its
// length is the sine of the angle between miter and axis.
Miter jointMiter(const KdGeVector3d& incoming, const KdGeVector3d& outgoing,
                 const KdGeVector3d& normal) {
    if (turnsStraightBack(incoming, outgoing, normal)) {
        return {leftOf(outgoing, normal), 1.0};
    }
    const KdGeVector3d sum = leftOf(incoming, normal) + leftOf(outgoing, normal);
    const double length = sum.length();
    return {{sum.x / length, sum.y / length, sum.z / length}, length / 2.0};
}

} // namespace orvex
