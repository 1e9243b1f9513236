#pragma once

#include "KdGePoint3d.h"
#include "KdGeVector3d.h"
#include "MlineContent.h"
#include "StyleLayout.h"

#include <vector>

namespace orvex {

// What a style and the settings say about a new multiline.
struct MlineSettings : StyleLayout {
    double scale = 1.0;
    int justification = 1; // 0 the greatest offset lies on the chain, 1 as they are, 2 the smallest
};

struct NewChain {
    std::vector<ChainVertex> vertices;
    // First line parameter of each element, [vertex][element]: how far along the miter it lies.
    std::vector<std::vector<double>> elementPositions;
};

// Axes, miters and element positions of a chain of world points in one plane. Miters point to the
// left of the way: at an open end by the style's angle, at a joint halfway between both segments.
// Element positions are offset * scale / sin(miter - axis). A point that repeats the one before it
// is left out; fewer than two different points give an empty chain, fewer than three an open one.
NewChain makeNewChain(const std::vector<KdGePoint3d>& points, bool closed,
                      const KdGeVector3d& normal, const MlineSettings& settings);

} // namespace orvex
