#pragma once

#include "EditTool.h"

// The weld tool: between two picks on one multiline every break of every element is removed. Picks
// may lie in gaps, so matching and mapping have forms of their own.

namespace mledit {

StepOutcome stepWeldAll(CMlineEdit& run);

} // namespace mledit

// Fixed by the interface. Whether a pick is where its end of a weld may take in a break at the
// pick: the lower end in a gap or at the end of a drawn interval, the upper end on a drawn interval
// or at the beginning of one. False without an entity. `tolerance` in drawing units.
bool IsPositionCutPt(const CMlineSegment* seg, bool lowerEnd, double tolerance);
