#pragma once

#include "KdGePoint3d.h"
#include "KdGeVector3d.h"

#include <array>
#include <vector>

namespace mledit {

// A multiline of two straight pieces that shows a style: what a picture of a style would be drawn
// from. Lengths in drawing units, angles in radians.

struct StyleSampleEnds {
    double startAngle = 0.0;
    double endAngle = 0.0;
};

struct StyleSample {
    static constexpr std::size_t kVertices = 3;
    std::array<KdGePoint3d, kVertices> vertices;
    std::array<KdGeVector3d, kVertices> directions;
    std::array<KdGeVector3d, kVertices> miters;
    std::array<std::vector<double>, kVertices> distances; // along the miter, an element each
};

// Offsets that are spread over `height`; all 0 where the first and the last one are the same.
std::vector<double> scaledOffsets(const std::vector<double>& offsets, int height);

// From the origin to (width, 0), with the middle vertex at a whole number. Top justified.
StyleSample makeStyleSample(int width, const std::vector<double>& scaled,
                            const StyleSampleEnds& ends);

} // namespace mledit
