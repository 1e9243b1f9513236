#pragma once

#include "breakList.h"

namespace mledit {

// What becomes of an element's break list when a vertex of the chain is moved, added or removed:
// values in, value out. Distances are drawing units along the element, not negative.

// An unbroken element at a vertex whose miter is at `turn` radians to its axis, `offset` being
// the element's distance from the chain. A turn of exactly 0 counts as 0.005, so that the element
// stays at a finite distance.
BreakList unbrokenList(double offset, double turn);

// The distance along the miter of an element at the offset `offset` from the chain.
double alongMiter(double offset, double turn);

// The segment's start moves forward: breaks keep their positions, those before the new start are
// removed.
BreakList shortenFromStart(BreakList list, double distance);

// The segment's start moves back. The gained interval stays undrawn, on an unbroken element
// too.
BreakList lengthenAtStart(BreakList list, double distance);

// The segment ends at `distance` from its start. Breaks at the end or after it are removed.
BreakList endAt(BreakList list, double distance);

// The element's own start slides along it to another miter, which gives it the offset `offset`.
// Growing, an interval that began at the start follows it.
BreakList growAtStart(BreakList list, double distance, double offset);
BreakList shrinkAtStart(BreakList list, double distance, double offset);

// The part before a new vertex at `distance`.
BreakList beforeNewVertex(BreakList list, double distance);

// Entry 0 alone: nothing is drawn on a segment without length.
BreakList withoutIntervals(BreakList list);

} // namespace mledit
