#pragma once

#include "EditTool.h"

// Cut single and cut all: a gap between two picks on one multiline. Only break lists change.

namespace mledit {

// Cuts the element of the first pick; a second pick on another element is carried over to it.
StepOutcome stepCutSingle(CMlineEdit& run);
StepOutcome stepCutAll(CMlineEdit& run);

} // namespace mledit
