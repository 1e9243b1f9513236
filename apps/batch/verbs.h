#pragma once

#include "BatchCall.h"
#include "exitStatus.h"

#include <optional>

namespace orvex {

// What the program does. Each returns why it couldn't, or nothing.

std::optional<BatchFailure> runScript(const RunCall& call);
std::optional<BatchFailure> showDrawing(const ShowCall& call);
std::optional<BatchFailure> listDrawing(const ListCall& call);

} // namespace orvex
