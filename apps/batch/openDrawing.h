#pragma once

#include "DrawingFile.h"
#include "exitStatus.h"

#include <memory>
#include <string>
#include <variant>

namespace orvex {

// Opens a drawing and tells its warnings on standard error.
std::variant<std::unique_ptr<DrawingFile>, BatchFailure> openDrawing(const std::string& path);

// A line on standard error: "orvex-batch: " and the text.
void complain(const std::string& text);

} // namespace orvex
