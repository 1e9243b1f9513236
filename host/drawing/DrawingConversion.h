#pragma once

#include "DrawingFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvex {

// The two forms of the drawing format hold the same tags.
enum class DrawingForm : std::uint8_t { text, binary };

struct ConvertedDrawing {
    std::string bytes;
    std::vector<DrawingWarning> warnings; // what was left out
};

// The drawing with the same values in the given form; the bytes as they are when they have it
// already. Numbers become the shortest text that reads back. What the form can't hold is a failure
// to write, with the place in `bytes`: numbers that don't fit their group code, line ends in texts.
[[nodiscard]] Result<ConvertedDrawing> convertBytes(std::string bytes, DrawingForm form);

} // namespace orvex
