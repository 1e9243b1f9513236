#pragma once

#include "EditTool.h"

// The tee tools: the end of the first multiline, the stem, is joined to the side of the second, the
// bar. What lies beyond the bar is removed, vertices included; the stem's end moves onto the bar's
// axis, its lines stop at lines of the bar, and in the open and merged forms the bar opens to let
// it in.

namespace mledit {

StepOutcome stepClosedTee(CMlineEdit& run);
StepOutcome stepOpenTee(CMlineEdit& run);
StepOutcome stepMergedTee(CMlineEdit& run);

// Whether the mapped pick lies before the crossing of the two elements 0: the direction from the
// segment's start to the pick, on element 0, and that from the pick to the crossing are the same.
// Then what lies before the crossing is kept.
bool crossingLiesAhead(const CMlineEdit& run, const CMlineSegment& seg);

} // namespace mledit
