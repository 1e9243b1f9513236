#pragma once

#include "EditTool.h"

// The corner joint: two multilines are cut back or extended to the crossing of their picked
// segments and keep the sides on which the picks lie. One multiline picked twice is joined with
// itself, between its first and last segment: the loop is either cut out or closed.

namespace mledit {

StepOutcome stepCornerJoint(CMlineEdit& run);

} // namespace mledit
