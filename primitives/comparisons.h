#pragma once

#include "VoMath.h"

// When two numbers or points count as equal. The functions differ in kind, and results of cuts and
// crossings rest on which one is used where: absolute ones (with VoMath), relative ones whose
// accepted gap grows with the coordinates, and an angular one. Tolerances are in the units of the
// values, for relative comparisons pure numbers.

// Absolute. When b lies within the tolerance of zero, a is compared with zero, not with b.
bool mlineRealEqual(double a, double b, double tolerance);

// Whether x lies between a and b, given in any order, ends included within the tolerance.
bool mlineRealBetween(double x, double a, double b, double tolerance);

// Angles in radians, brought to 0 to 2 pi first. There is no wrap-around: 0 and an angle just
// below 2 pi differ, and -2 pi counts as 2 pi.
bool mlineAngleEqual(double a, double b, double tolerance);

// Absolute, the bounds included; a NaN isn't zero.
bool IMvelaIsZero(double value, double tolerance);

// Relative to b; when b is within the tolerance of zero, a has to be so too.
bool IMvelaRealEqual(double a, double b, double tolerance);

// Relative to b, coordinate by coordinate; strict where IMvelaRealEqual includes the bound.
bool IMvelaPointEqual(const double* a, const double* b, double tolerance);

// IMvelaPointEqual at 1e-10; 1 or 0.
int gx_pt_equal(const double* a, const double* b);
