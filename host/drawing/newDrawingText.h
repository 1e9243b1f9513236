#pragma once

#include <string>

namespace orvex {

// The bytes of an empty drawing that every reader takes: newDrawing.dxf, which the build embeds.
std::string newDrawingText();

} // namespace orvex
