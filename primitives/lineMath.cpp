#include "lineMath.h"

#include "comparisons.h"
#include "vectorMath.h"

#include <algorithm>
#include <cmath>

using namespace mledit;

namespace {

// In plan and for feet.
constexpr double kLineTolerance = 1e-11;
constexpr double kOnSegment = 1e-7;

// The greater plan extent decides which coordinate measures a point on a line.
double heightAt(const double* p, const double* q, const double* point) {
    const int k = std::abs(q[0] - p[0]) < std::abs(q[1] - p[1]) ? 1 : 0;
    return p[2] + (q[2] - p[2]) * (point[k] - p[k]) / (q[k] - p[k]);
}

double inverseSlope(double dx, double dy) {
    constexpr double kLevel = 1e30;
    if (std::abs(dy) < kLineTolerance) {
        return IMvelaIsZero(dx, kLineTolerance) ? 0.0 : kLevel;
    }
    return dx / dy;
}

bool isOnSegment(const double* point, const double* p, const double* q) {
    const int k = std::abs(q[0] - p[0]) > std::abs(q[1] - p[1]) ? 0 : 1;
    return !((point[k] - p[k]) * (point[k] - q[k]) > kOnSegment) ||
           IMvelaPointEqual(point, p, kLineTolerance) || IMvelaPointEqual(point, q, kLineTolerance);
}

} // namespace

short gx_ptlndist(const double* p, const double* a, const double* b, double* dist, double* foot) {
    double point[3] = {0.0, 0.0, 0.0};
    double distance = 0.0;
    short result = -2;
    if (p != nullptr && a != nullptr && b != nullptr) {
        double d[3] = {b[0] - a[0], b[1] - a[1], b[2] - a[2]};
        const double e[3] = {p[0] - a[0], p[1] - a[1], p[2] - a[2]};
        const double length = std::sqrt(dot(d, d));
        if (IMvelaRealEqual(length, 0.0, kLineTolerance)) {
            result = -1;
            copyPoint(a, point);
        } else {
            d[0] /= length;
            d[1] /= length;
            d[2] /= length;
            const double t = dot(e, d);
            int k = std::abs(d[1]) > std::abs(d[0]) ? 1 : 0;
            k = std::abs(d[2]) > std::abs(d[k]) ? 2 : k;
            for (int i = 0; i < 3; ++i) {
                point[i] = a[i] + d[i] * t;
            }
            result = (point[k] - a[k]) * (point[k] - b[k]) <= 0.0 ? 1 : 0;
        }
        distance = IMgx_dist3d(p, point);
    }
    if (dist != nullptr) {
        *dist = distance;
    }
    if (foot != nullptr) {
        copyPoint(point, foot);
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

// Crossings in space.

namespace {

constexpr double kTolerance = 1e-7;

constexpr int kParallel = -1;
constexpr int kOverlap = -2;
constexpr int kGap = -3;
constexpr int kMiss = -4;
constexpr int kOnBoth = 3;

bool isZero(double value) {
    return IMvelaIsZero(value, kTolerance);
}
bool areEqual(double a, double b) {
    return IMvelaRealEqual(a, b, kTolerance);
}

struct Line {
    const double* start;
    const double* end;
    double dx, dy, dz;

    Line(const double* p, const double* q)
        : start(p), end(q), dx(q[0] - p[0]), dy(q[1] - p[1]), dz(q[2] - p[2]) {}

    [[nodiscard]] bool isVertical() const { return isZero(dx) && isZero(dy); }
    [[nodiscard]] double low() const { return std::min(start[2], end[2]); }
    [[nodiscard]] double high() const { return std::max(start[2], end[2]); }

    // z of the line at a point in plan, measured along the greater plan extent.
    [[nodiscard]] double heightAt(double x, double y) const {
        if (std::abs(dx) < std::abs(dy)) {
            return start[2] + dz * (y - start[1]) / dy;
        }
        return start[2] + dz * (x - start[0]) / dx;
    }
    [[nodiscard]] bool isPast(double x, double y) const {
        const double product = std::abs(dx) > std::abs(dy) ? (x - start[0]) * (x - end[0])
                                                           : (y - start[1]) * (y - end[1]);
        return product > kTolerance;
    }
};

bool areEqualInPlan(const double* a, const double* b) {
    return areEqual(a[0], b[0]) && areEqual(a[1], b[1]);
}

void write(double* out, double x, double y, double z) {
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

void write(double* out, const double* point) {
    write(out, point[0], point[1], point[2]);
}

int bothVertical(const Line& a, const Line& b, double* out) {
    if (!areEqualInPlan(a.start, b.start)) {
        return kParallel;
    }
    const double span = std::max(a.high(), b.high()) - std::min(a.low(), b.low());
    const double sum = std::abs(a.dz) + std::abs(b.dz);
    if (areEqual(span, sum)) {
        const double touch = areEqual(a.high(), b.low()) ? a.high() : b.high();
        write(out, a.start[0], a.start[1], touch);
        return kOnBoth;
    }
    if (span < sum) {
        write(out, a.start[0], a.start[1], std::max(a.low(), b.low()));
        return kOverlap;
    }
    return kGap;
}

int parallelInPlan(const Line& a, const Line& b, double* out) {
    const double d1 = IMgx_dist3d(a.start, a.end);
    const double d2 = IMgx_dist3d(a.start, b.start);
    const double d3 = IMgx_dist3d(a.end, b.start);
    const double d4 = IMgx_dist3d(a.start, b.end);
    const double d5 = IMgx_dist3d(a.end, b.end);
    const double d6 = IMgx_dist3d(b.start, b.end);
    if (!areEqual(d1, d2 + d3) && !areEqual(d2, d1 + d3) && !areEqual(d3, d1 + d2)) {
        return kParallel;
    }
    if (areEqual(d4, d1 + d6) || areEqual(d2, d1 + d6)) {
        write(out, a.end);
        return kOnBoth;
    }
    if (areEqual(d5, d1 + d6) || areEqual(d3, d1 + d6)) {
        write(out, a.start);
        return kOnBoth;
    }
    if (areEqual(d1, d2 + d3)) {
        write(out, b.start);
        return kOverlap;
    }
    if (areEqual(d1, d4 + d5)) {
        write(out, b.end);
        return kOverlap;
    }
    return kGap;
}

// Whether the line goes through height z at that point, as the plan crossing is on both.
bool passes(const Line& line, double x, double y, double z) {
    if (isZero(line.dz)) {
        return areEqual(z, line.start[2]);
    }
    if (std::abs(line.dx) >= std::abs(line.dy)) {
        return areEqual((z - line.start[2]) * line.dx, (x - line.start[0]) * line.dz);
    }
    return areEqual((z - line.start[2]) * line.dy, (y - line.start[1]) * line.dz);
}

int crossingInPlan(const Line& a, const Line& b, double det, double* out) {
    double x = a.start[0];
    double y = 0.0;
    if (isZero(a.dx)) {
        y = (b.dy / b.dx) * (x - b.start[0]) + b.start[1];
    } else {
        x = isZero(b.dx) ? b.start[0]
                         : (a.start[0] * b.dx * a.dy - a.dx * b.dx * (a.start[1] - b.start[1]) -
                            b.start[0] * a.dx * b.dy) /
                               det;
        y = (a.dy / a.dx) * (x - a.start[0]) + a.start[1];
    }
    const double z = a.heightAt(x, y);
    if (!passes(b, x, y, z)) {
        return kMiss;
    }
    write(out, x, y, z);
    return (a.isPast(x, y) ? 0 : 1) + (b.isPast(x, y) ? 0 : 2);
}

// Whether a vertical line at that point meets the other line in plan.
bool liesOnInPlan(const double* point, const Line& line) {
    const double* const p = line.start;
    return (isZero(line.dx) && areEqual(p[0], point[0])) ||
           (isZero(line.dy) && areEqual(p[1], point[1])) || areEqualInPlan(point, p) ||
           areEqualInPlan(point, line.end) ||
           areEqual((point[1] - p[1]) * line.dx, line.dy * (point[0] - p[0]));
}

int secondVertical(const Line& a, const Line& b, double* out) {
    const double* const point = b.start;
    if (!liesOnInPlan(point, a)) {
        return kMiss;
    }
    const double z = a.heightAt(point[0], point[1]);
    write(out, point[0], point[1], z);
    const bool onSecond = z >= b.low() && z <= b.high();
    return (a.isPast(point[0], point[1]) ? 0 : 1) + (onSecond ? 2 : 0);
}

// No mirror of secondVertical: the first line always counts as met, and what fails on it is
// reported of the second.
int firstVertical(const Line& a, const Line& b, double* out) {
    const double* const point = a.start;
    if (!liesOnInPlan(point, b)) {
        return kMiss;
    }
    const double z = b.heightAt(point[0], point[1]);
    write(out, point[0], point[1], z);
    const bool onSecond = z >= a.low() && z <= a.high() && !b.isPast(point[0], point[1]);
    return 1 + (onSecond ? 2 : 0);
}

} // namespace

int linexline3d(const double* a1, const double* a2, const double* b1, const double* b2,
                double* out) {
    const Line first(a1, a2);
    const Line second(b1, b2);
    if (first.isVertical() && second.isVertical()) {
        return bothVertical(first, second, out);
    }
    if (second.isVertical()) {
        return secondVertical(first, second, out);
    }
    if (first.isVertical()) {
        return firstVertical(first, second, out);
    }
    const double det = second.dx * first.dy - first.dx * second.dy;
    return isZero(det) ? parallelInPlan(first, second, out)
                       : crossingInPlan(first, second, det, out);
}
