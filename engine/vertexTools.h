#pragma once

#include "EditTool.h"

// Adding and removing vertices. Every other vertex keeps its position; every list of the entity is
// rewritten from a copy of how it was.

namespace mledit {

StepOutcome stepAddVertex(CMlineEdit& run);
StepOutcome stepDeleteVertex(CMlineEdit& run);

} // namespace mledit
