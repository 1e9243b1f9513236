#pragma once

#include <span>
#include <vector>

namespace orvex {

// A dash pattern as painters take it: lengths of strokes and gaps in turn, a stroke first, an even
// number of them; and how far into it a line starts. No lengths at all: the line is continuous.
struct DashCycle {
    std::vector<double> lengths;
    double offset = 0.0;

    [[nodiscard]] double period() const;
};

// From a line type's dashes (positive pen down, negative pen up, 0 a dot), each multiplied by
// `scale`; a dot gets the length `dot`. Patterns that would only show as grey, with a period below
// `least`, are continuous.
DashCycle dashCycle(std::span<const double> dashes, double scale, double dot, double least);

} // namespace orvex
