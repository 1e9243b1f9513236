#pragma once

struct CMlineSegment;

// Whether a pick stands where its end of a weld may take in a break at the pick: the lower end in
// a gap or at the end of a drawn stretch, the upper end on a stretch or at the beginning of one.
// False without an entity. `tolerance` in drawing units.
bool IsPositionCutPt(const CMlineSegment* seg, bool lowerEnd, double tolerance);
