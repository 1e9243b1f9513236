#include "vectorMath.h"

#include "VoMath.h"

#include <cmath>

double tklengine_distance(const double* a, const double* b) {
    return a != nullptr && b != nullptr ? IMgx_dist3d(a, b) : 0.0;
}

double IMgx_dist3d(const double* a, const double* b) {
    const double dx = b[0] - a[0];
    const double dy = b[1] - a[1];
    const double dz = b[2] - a[2];
    return std::sqrt(dx * dx + dy * dy + dz * dz);
}

double tklengine_angle(const double* from, const double* to) {
    constexpr double kSamePlace = 1e-10;
    if (from == nullptr || to == nullptr) {
        return 0.0;
    }
    const double dx = to[0] - from[0];
    const double dy = to[1] - from[1];
    if (VoMath::isEqual(dx, 0.0, kSamePlace) && VoMath::isEqual(dy, 0.0, kSamePlace)) {
        return 0.0;
    }
    const double angle = std::atan2(dy, dx);
    return angle < 0.0 ? angle + mledit::kTwoPi : angle;
}

void gx_crossproduct(const double* a, const double* b, double* out) {
    const double x = a[1] * b[2] - a[2] * b[1];
    const double y = a[2] * b[0] - a[0] * b[2];
    const double z = a[0] * b[1] - a[1] * b[0];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

double Determinant(const C3Point& a, const C3Point& b, C3Point* normal) {
    const CNormal n(normal);
    return a.X() * b.Y() * n.Z() + a.Y() * b.Z() * n.X() + a.Z() * b.X() * n.Y() -
           a.Z() * b.Y() * n.X() - a.Y() * b.X() * n.Z() - a.X() * b.Z() * n.Y();
}
