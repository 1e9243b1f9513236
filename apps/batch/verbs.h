#pragma once

#include "BatchCall.h"
#include "Failure.h"

#include <optional>

namespace orvex {

// What the program does.

std::optional<Failure> runScript(const RunCall& call);
std::optional<Failure> showDrawing(const ShowCall& call);
std::optional<Failure> listDrawing(const ListCall& call);
std::optional<Failure> joinDrawing(const JoinCall& call);
std::optional<Failure> auditDrawing(const AuditCall& call);
std::optional<Failure> convertDrawing(const ConvertCall& call);

} // namespace orvex
