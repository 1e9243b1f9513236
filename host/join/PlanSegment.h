#pragma once

#include "JoinWall.h"

#include <array>

namespace orvex {

// A segment of a wall, prepared for the search: its strip, the band between its outer elements.
struct PlanSegment {
    unsigned wall = 0; // index into the plan's walls
    unsigned segment = 0;
    unsigned endVertex = 0;
    PlanLine middle;
    std::array<PlanLine, 2> outer; // of the first and the last element
    double half = 0.0;             // half its width
    // Where the strip begins and ends along the middle line. At an end that was joined before, that
    // is where its lines end, not its vertex.
    double from = 0.0;
    double to = 0.0;
    WallEnd atFrom = WallEnd::none; // the open end there, none at a bend
    WallEnd atTo = WallEnd::none;
    // Of the strip, around it: the ends of both outer lines.
    std::array<PlanVector, 4> corners;
};

// The segments that have a length, wall by wall.
[[nodiscard]] std::vector<PlanSegment> planSegments(std::span<const JoinWall> walls);

// Whether two strips overlap by more than `slack` in every direction, miters included.
[[nodiscard]] bool stripsOverlap(const PlanSegment& a, const PlanSegment& b, double slack);

} // namespace orvex
