#pragma once

#include <string>

namespace orvex {

// The text of an empty drawing that every reader takes.
[[nodiscard]] std::string newDrawingText();

} // namespace orvex
