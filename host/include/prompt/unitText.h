#pragma once

#include "Status.h"

// Numbers as users write them, always with a point. Buffers have room for 512 characters.

// Angle in radians to decimal degrees (unit 0) with `precision` places. DIMZIN 0 keeps trailing
// zeros, 8 drops them.
Status kddbAngToS(double radians, int unit, int precision, wchar_t* text);
// Text in decimal degrees to radians; bad text leaves the result alone.
Status kddbAngToF(const wchar_t* text, int unit, double* radians);
// Length in decimal units (unit 2); halves round away from zero, zero has no sign.
Status kddbRToS(double value, int unit, int precision, wchar_t* text);
