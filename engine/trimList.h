#pragma once

#include "breakList.h"

namespace mledit {

// Trimming an element at one point: values in, value out. Entry 0, the offset, never changes.
// `distance` is that of the point from the element's position at the segment's start, drawing
// units, not negative. The two forms aren't mirror images: only the first counts a break at the
// point, within 1e-10, as reached, and only the second gives up the first break in any case.

// Keeps what lies before the point. A point that doesn't lie `ahead` of the segment's start is
// appended as it is.
BreakList keepUpTo(BreakList list, double distance, bool ahead);

// Where a point lies that a segment is to be drawn from.
enum class TrimPosition { beforeStart, within, beyondEnd };

// Keeps what lies after the point. One beyond the end is appended as it is; one before the start
// becomes a negative break, so that the element reaches back to it.
BreakList keepFrom(BreakList list, double distance, TrimPosition place);

} // namespace mledit
