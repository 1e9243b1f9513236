#pragma once

#include "BatchCall.h"

#include <vector>

namespace orvex {

// The tasks of a call in the order of its drawings, with the names of their outputs. Fails, before
// anything is opened, where an output would cost a drawing: one that is an input, the output of
// another drawing, a link, or there already without --overwrite; and for options that contradict.
Result<std::vector<DrawingTask>> planTasks(const VerbCall& call);

} // namespace orvex
