#pragma once

#include "Verb.h"
#include "exitStatus.h"

#include <functional>

namespace orvex {

// Runs an action; what it fails with, or throws, is complained of.
ExitStatus reported(const std::function<std::optional<Failure>()>& action);

// One drawing in this process: the exit status of it.
ExitStatus carryOutTask(Verb& verb, const DrawingTask& task, Counts& counts);

} // namespace orvex
