#pragma once

#include "KdGeVector3d.h"

#include <cmath>
#include <numbers>

namespace orvex {

// The arithmetic of vectors and angles that all rooms of the host share. Length and normalisation
// are members of KdGeVector3d.

inline constexpr double kPi = std::numbers::pi;

constexpr double dot(const KdGeVector3d& a, const KdGeVector3d& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

constexpr KdGeVector3d cross(const KdGeVector3d& a, const KdGeVector3d& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// Angles that users type and see.
constexpr double toRadians(double degrees) {
    return degrees * kPi / 180.0;
}
constexpr double toDegrees(double radians) {
    return radians * 180.0 / kPi;
}

// Angles in drawing files. Rounded differently from the above: which degrees stand for the radians
// in memory, and so the bytes of a saved style, depends on the last bit of this product.
inline constexpr double kDegree = kPi / 180.0; // radians
constexpr double fileRadians(double degrees) {
    return degrees * kDegree;
}

// The axes of an entity's own plane by the arbitrary-axis rule of the drawing format: close to the
// world's Z the X axis is taken from the world's Y, elsewhere from its Z. `normal` has length 1.
struct PlaneAxes {
    KdGeVector3d x;
    KdGeVector3d y; // of length 1 to within rounding
};
inline PlaneAxes arbitraryAxes(const KdGeVector3d& normal) {
    constexpr double kNearPole = 1.0 / 64.0;
    const bool nearPole = std::abs(normal.x) < kNearPole && std::abs(normal.y) < kNearPole;
    const KdGeVector3d reference =
        nearPole ? KdGeVector3d{0.0, 1.0, 0.0} : KdGeVector3d{0.0, 0.0, 1.0};
    PlaneAxes axes;
    axes.x = cross(reference, normal).normalize();
    axes.y = cross(normal, axes.x);
    return axes;
}

} // namespace orvex
