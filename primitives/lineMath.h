#pragma once

// Feet and crossings of lines through two points each. Points are x, y, z in drawing units. None
// of these functions allocates: they run for each pair of elements and segments.

// Foot of the perpendicular from p on the infinite line through a and b, and its distance from p,
// in space. Either output may be null.
//   1 foot between a and b, ends included;  0 beyond an end
//  -1 a and b are one point: that is the foot
//  -2 an input is null: distance 0, foot (0, 0, 0)
short gx_ptlndist(const double* p, const double* a, const double* b, double* dist, double* foot);

// Crossing in plan, z taken from one of the lines. The test for "on a segment" compares `out`
// with the ends in space before z is known, so its z on entry counts: give a zeroed one.
//  -1 parallel or no line: `out` isn't written
//   0 on neither segment;  1 on the first only;  2 on the second only;  3 on both
short gx_linexline(const double* a1, const double* a2, const double* b1, const double* b2,
                   double* out);

// Crossing in space.
//   0 to 3 as gx_linexline
//  -1 parallel lines apart, or verticals at two positions: `out` isn't written
//  -2 overlapping on one line: `out` is a point of the overlap
//  -3 on one line with a gap between: `out` isn't written
//  -4 the lines miss each other: `out` isn't written
int linexline3d(const double* a1, const double* a2, const double* b1, const double* b2,
                double* out);
