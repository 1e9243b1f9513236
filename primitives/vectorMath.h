#pragma once

#include "C3Point.h"
#include "CNormal.h"

// Distances, directions and products of points in space; points are x, y, z.

namespace mledit {

inline constexpr double kPi = 3.14159265358979323846;
inline constexpr double kTwoPi = 6.283185307179586;
inline constexpr double kHalfPi = 1.5707963267948966;

inline double dot(const double* a, const double* b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

// In plan: positive when b lies counter-clockwise of a.
inline double planCross(const double* a, const double* b) {
    return a[0] * b[1] - a[1] * b[0];
}

inline void copyPoint(const double* from, double* to) {
    to[0] = from[0];
    to[1] = from[1];
    to[2] = from[2];
}

} // namespace mledit

// Distance in space; 0 when a pointer is null.
double tklengine_distance(const double* a, const double* b);

// Distance in space; neither pointer may be null.
double IMgx_dist3d(const double* a, const double* b);

// Direction in plan, radians, 0 up to 2 pi; 0 when a pointer is null or when the points coincide
// in plan within 1e-10.
double tklengine_angle(const double* from, const double* to);

// out = a x b; out may be one of them.
void gx_crossproduct(const double* a, const double* b, double* out);

// Triple product of a, b and the normal, by default that of the plan. Then it is the signed area
// of a and b in plan, positive when b lies counter-clockwise of a.
double Determinant(const C3Point& a, const C3Point& b, C3Point* normal);
