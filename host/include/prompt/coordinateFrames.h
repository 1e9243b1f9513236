#pragma once

#include "resbuf.h"

// Converts a point, or with `displacement` 1 a direction, between frames. A frame is a short
// (5003): 0 world, 1 current user system, 2 display; or a point (5009): the normal of a plane
// through the world's origin, its axes by the arbitrary-axis rule of the drawing format. Unknown
// frames give an error and leave `out` alone. World to world returns the coordinates bit for bit.
// `out` may be `point`.
int kdedTrans(const double* point, const resbuf* from, const resbuf* to, int displacement,
              double* out);
