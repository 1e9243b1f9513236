#pragma once

#include "DrawingDocument.h"

namespace orvex {

// Cuts the document's bytes and fills the database with what they stand for. Warnings come in the
// order in which they were found.
[[nodiscard]] std::optional<Failure> readDrawing(DrawingDocument& document, DatabaseCore& core,
                                                 const Progress& progress,
                                                 std::vector<DrawingWarning>& warnings);

} // namespace orvex
