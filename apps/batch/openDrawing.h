#pragma once

#include "DrawingFile.h"
#include "exitStatus.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace orvex {

// Opens a drawing and tells its warnings on standard error.
std::variant<std::unique_ptr<DrawingFile>, BatchFailure> openDrawing(const std::string& path);

// Nothing while all that was printed could be written.
std::optional<BatchFailure> flushOutput();

// A line on standard error: "orvex-batch: " and the text.
void complain(const std::string& text);

} // namespace orvex
