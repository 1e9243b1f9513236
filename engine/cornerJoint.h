#pragma once

#include "EditTool.h"

// The corner joint: two multilines are cut back or extended to the crossing of their picked
// segments and keep the sides on which the picks lie. One multiline picked twice is joined with
// itself, between its first and last segment: the loop is either cut out or closed.

namespace mledit {

StepOutcome stepCornerJoint(CMlineEdit& run);

// Which element of the other multiline an element joins.
//
// `count` elements in the multiline at hand, `otherCount` in the other. `oppositeEnds` says that
// one of the two keeps its start side and the other its end side, `keepStart` which side the one
// at hand keeps. The outer elements always join outer ones.
int cornerPartner(int element, int count, int otherCount, bool oppositeEnds, bool keepStart);

} // namespace mledit
