#pragma once

#include "placeFitness.h"

namespace orvex {

// A place while the plan is made.
struct DraftPlace {
    JoinPlace place;
    double tolerance = 0.0;
    double half = 0.0;     // of the wider wall
    double shortBy = 0.0;  // tee: distance of the stem's end from the bar's strip
    double nearLine = 0.0; // tee: distance of the bar from the stem's other end
    bool dropped = false;  // another place stands for it
};

// Settles places that are in each other's way: an end that reaches several bars takes the nearest
// one, stems that face each other across a bar are no place of their own, and places that share an
// end or a stretch of a line are left, as one node where they lie together.
void resolveConflicts(std::vector<DraftPlace>& drafts, std::span<const JoinWall> walls);

} // namespace orvex
