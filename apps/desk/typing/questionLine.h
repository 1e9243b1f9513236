#pragma once

#include "CommandLine.h"

namespace orvex {

struct PromptRequest;

// A question as it stands in the command line, after the name of the tool that asks.
CommandLine::Question questionLine(const PromptRequest& request, const QString& tool,
                                   const QPalette& palette);

} // namespace orvex
