#pragma once

struct CMlineSegment;

// From the picked element to the others.

namespace mledit {

// The chain itself, where an element is asked for.
inline constexpr int kChain = -1;

// The ends of the picked segment on an element, or on the chain, and the point on the line through
// them on the perpendicular to the segment through the pick. The pick itself where they don't
// cross.
struct PerpendicularFoot {
    double start[3];
    double end[3];
    double point[3];
};

// False when the record has no such segment or element.
bool footOnElement(const CMlineSegment& seg, int element, PerpendicularFoot& foot);

// Makes the pick itself the mapped point, at `point`.
void mapToPick(CMlineSegment& seg, const double* point);

} // namespace mledit
