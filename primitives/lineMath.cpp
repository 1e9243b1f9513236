#include "lineMath.h"

#include "comparisons.h"
#include "vectorMath.h"

#include <cmath>

namespace {

constexpr double kLineTolerance = 1e-11;
constexpr double kOnSegment = 1e-7;

// The greater plan extent decides by which coordinate a place on a line is told.
double heightAt(const double* p, const double* q, const double* place) {
    const int k = std::abs(q[0] - p[0]) < std::abs(q[1] - p[1]) ? 1 : 0;
    return p[2] + (q[2] - p[2]) * (place[k] - p[k]) / (q[k] - p[k]);
}

double inverseSlope(double dx, double dy) {
    constexpr double kLevel = 1e30;
    if (std::abs(dy) < kLineTolerance) {
        return IMvelaIsZero(dx, kLineTolerance) ? 0.0 : kLevel;
    }
    return dx / dy;
}

bool isOnSegment(const double* place, const double* p, const double* q) {
    const int k = std::abs(q[0] - p[0]) > std::abs(q[1] - p[1]) ? 0 : 1;
    return !((place[k] - p[k]) * (place[k] - q[k]) > kOnSegment) ||
           IMvelaPointEqual(place, p, kLineTolerance) || IMvelaPointEqual(place, q, kLineTolerance);
}

} // namespace

short gx_ptlndist(const double* p, const double* a, const double* b, double* dist, double* foot) {
    double place[3] = {0.0, 0.0, 0.0};
    double distance = 0.0;
    short result = -2;
    if (p != nullptr && a != nullptr && b != nullptr) {
        double d[3] = {b[0] - a[0], b[1] - a[1], b[2] - a[2]};
        const double e[3] = {p[0] - a[0], p[1] - a[1], p[2] - a[2]};
        const double length = std::sqrt(d[0] * d[0] + d[1] * d[1] + d[2] * d[2]);
        if (IMvelaRealEqual(length, 0.0, kLineTolerance)) {
            result = -1;
            place[0] = a[0];
            place[1] = a[1];
            place[2] = a[2];
        } else {
            d[0] /= length;
            d[1] /= length;
            d[2] /= length;
            const double t = e[0] * d[0] + e[1] * d[1] + e[2] * d[2];
            int k = std::abs(d[1]) > std::abs(d[0]) ? 1 : 0;
            k = std::abs(d[2]) > std::abs(d[k]) ? 2 : k;
            for (int i = 0; i < 3; ++i) {
                place[i] = a[i] + d[i] * t;
            }
            result = (place[k] - a[k]) * (place[k] - b[k]) <= 0.0 ? 1 : 0;
        }
        distance = IMgx_dist3d(p, place);
    }
    if (dist != nullptr) {
        *dist = distance;
    }
    if (foot != nullptr) {
        foot[0] = place[0];
        foot[1] = place[1];
        foot[2] = place[2];
    }
    return result;
}

short gx_linexline(const double* a1, const double* a2, const double* b1, const double* b2,
                   double* out) {
    const double dx1 = a2[0] - a1[0];
    const double dy1 = a2[1] - a1[1];
    const double dx2 = b2[0] - b1[0];
    const double dy2 = b2[1] - b1[1];
    const double den = dx1 * dy2 - dx2 * dy1;
    if (IMvelaIsZero(den, kLineTolerance) || IMvelaPointEqual(a1, a2, kLineTolerance) ||
        IMvelaPointEqual(b1, b2, kLineTolerance)) {
        return -1;
    }
    if (std::abs(inverseSlope(dx1, dy1) - inverseSlope(dx2, dy2)) < kLineTolerance) {
        return -1;
    }
    const double x =
        (b1[0] * (dx1 * dy2) - a1[0] * (dx2 * dy1) - (b1[1] - a1[1]) * dx1 * dx2) / den;
    const double y = std::abs(dx1) > std::abs(dx2) ? (dy1 / dx1) * (x - a1[0]) + a1[1]
                                                   : (dy2 / dx2) * (x - b1[0]) + b1[1];
    out[0] = x;
    out[1] = y;
    const int onFirst = isOnSegment(out, a1, a2) ? 1 : 0;
    const int onSecond = isOnSegment(out, b1, b2) ? 2 : 0;
    const int result = onFirst + onSecond;
    out[2] = result == 1 ? heightAt(a1, a2, out) : heightAt(b1, b2, out);
    return static_cast<short>(result);
}
