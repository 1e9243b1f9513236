#pragma once

#include <vector>

namespace orvex {

struct MlineStyleContent;

// What a style says about where things lie.
struct StyleLayout {
    std::vector<double> offsets; // of the elements, drawing units at scale 1, left positive
    double startAngle = 1.5707963267948966; // radians, between axis and miter at open ends
    double endAngle = 1.5707963267948966;
};

StyleLayout layoutOf(const MlineStyleContent& style);

// Signed distances of the elements from the chain, square to its segments, drawing units, left
// positive: offset * scale, moved so that the greatest offset lies on the chain (justification 0),
// none (1) or the smallest (2).
std::vector<double> elementDistances(const StyleLayout& style, double scale, int justification);

} // namespace orvex
