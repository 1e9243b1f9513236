#pragma once

#include "breakList.h"

namespace mledit {

// Removing breaks from break lists: values in, value out. Between the two ends nothing is matched
// up: every entry that lies between them is removed.

// One end of a weld on one element.
struct WeldEnd {
    double distance;     // from the element's position at the segment's start, drawing units
    bool takesBreakAtIt; // a break at the end, within the aperture, lies between the ends too
};

// Whether the lower end of a weld may take in a break at it: it lies in a gap or at the end of a
// drawn interval. The upper end may when this is false. A break a little above the distance, within
// the tolerance, counts as passed.
bool liesInGap(const BreakList& list, double distance, double tolerance);

// Both ends on one segment. An element that is left without breaks is whole again.
BreakList weldWithin(BreakList list, const WeldEnd& lower, const WeldEnd& upper, double tolerance);

// The first segment of a longer weld: no break from the end on.
BreakList weldToSegmentEnd(BreakList list, const WeldEnd& lower, double tolerance);

// The last segment of a longer weld: no break up to the end. An interval in which the end lies
// reaches back to the segment's start.
BreakList weldFromSegmentStart(BreakList list, const WeldEnd& upper, double tolerance);

// A segment in the middle of a longer weld: unbroken.
BreakList weldWhole(BreakList list);

} // namespace mledit
