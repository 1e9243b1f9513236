#pragma once

struct CMlineSegment;

// The chain itself, where an element is asked for.
inline constexpr int kChain = -1;

// The ends of the picked segment on an element, or on the chain, and the place on the line through
// them that lies square across from the pick. Lines that don't cross leave the pick itself.
struct AcrossPick {
    double start[3];
    double end[3];
    double crossing[3];
};

// False when the record has no such segment or element.
bool acrossPick(const CMlineSegment& seg, int element, AcrossPick& place);

// Makes the pick itself the mapped place, at `point`.
void mapToPick(CMlineSegment& seg, const double* point);
