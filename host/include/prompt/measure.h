#pragma once

// Distance of two points in space, in the units of the coordinates given.
double kdutDistance(const double* a, const double* b);

// Direction from a to b in the XY plane of the coordinates given, radians, 0 up to 2 pi, by atan2
// without any tolerance; equal points give 0.
double kdutAngle(const double* a, const double* b);
