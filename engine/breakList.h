#pragma once

#include <cstddef>
#include <vector>

namespace mledit {

// Break lists: how one element is drawn along one segment. Entry 0 is the element's offset along
// the miter and never changes; then come distances from the element's position at the segment's
// start, ascending: at odd indices a drawn interval begins, at even ones it ends, and an
// interval without an end extends to the segment's end. {offset, 0} is a whole line, {offset} draws
// nothing.
//
// These functions make a gap from the distances of its ends: values in, value out. Nothing is
// merged afterwards; a break equal to an end of the gap, within 1e-10, counts as reached.
using BreakList = std::vector<double>;

// Within 1e-10 drawing units.
bool areEqualBreaks(double a, double b);

// The entry at an index up to the list's size.
inline BreakList::iterator entryAt(BreakList& list, std::size_t index) {
    return list.begin() + static_cast<BreakList::difference_type>(index);
}

// A gap within one segment. `insertsEnds` is false when the gap's end lies on the segment's start.
BreakList cutWithin(BreakList list, double from, double to, bool insertsEnds);

// The first segment of a longer gap: nothing from `from` on. `insertsStart` is false when the gap
// starts at the segment's start. The parity of the list isn't checked: a start in an existing
// gap turns the rest of the segment on.
BreakList cutToSegmentEnd(BreakList list, double from, bool insertsStart);

// The last segment of a longer gap: nothing up to `to`. `insertsEnd` is false when the gap ends at
// the segment's end. Parity as above.
BreakList cutFromSegmentStart(BreakList list, double to, bool insertsEnd);

// A segment in the middle of a longer gap: the offset alone.
BreakList cutWhole(BreakList list);

} // namespace mledit
