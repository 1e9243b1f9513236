#include "measure.h"

#include <cmath>

double kdutDistance(const double* a, const double* b) {
    const double dx = b[0] - a[0];
    const double dy = b[1] - a[1];
    const double dz = b[2] - a[2];
    return std::sqrt(dx * dx + dy * dy + dz * dz);
}

double kdutAngle(const double* a, const double* b) {
    constexpr double kTwoPi = 6.283185307179586;
    const double dx = b[0] - a[0];
    const double dy = b[1] - a[1];
    if (dx == 0.0 && dy == 0.0) {
        return 0.0; // atan2 would distinguish the zeros' signs
    }
    const double angle = std::atan2(dy, dx);
    return angle < 0.0 ? angle + kTwoPi : angle;
}
