#pragma once

#include "planJoins.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace orvex::testing {

// A wall to be drawn: a chain, and the offsets of its elements from it.
struct WallSketch {
    std::vector<PlanVector> points;
    std::vector<double> offsets{100.0, -100.0};
    bool closed = false;
    double z = 0.0;
    double normal = 1.0; // z of it
};

// A multiline as MLINE draws it: square ends, miters that halve the angle.
MlineContent drawWall(const WallSketch& sketch);

// All points moved, or turned about the origin (degrees, counter-clockwise).
std::vector<WallSketch> moved(std::vector<WallSketch> walls, PlanVector by);
std::vector<WallSketch> turned(std::vector<WallSketch> walls, double degrees);
std::vector<WallSketch> reversed(std::vector<WallSketch> walls);

// Walls in drawing order, with handles from 0x100 on.
std::vector<JoinWall> wallsOf(const std::vector<MlineContent>& contents);
std::vector<JoinWall> wallsOf(const std::vector<WallSketch>& sketches);

// "crosses/tees/corners/left" of what is planned.
std::string countsOf(const JoinPlan& plan);

// Does to the contents what the tools do to the outer shape: moves the ends of tees and corners to
// where the chains cross, suppresses their caps, and sets the stops.
void playIdeally(const JoinPlan& plan, std::vector<MlineContent>& contents);

void setStops(MlineContent& content, unsigned segment, unsigned element,
              const std::vector<double>& stops);

} // namespace orvex::testing
