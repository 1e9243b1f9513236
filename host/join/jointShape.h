#pragma once

#include "checkJoint.h"

namespace orvex {

// What a joint asks of one element over the segment that is joined. Distances along the element's
// line as in its list; infinite past an end that is joined.
struct ElementShape {
    enum class Rule { any, drawn, open };

    Rule rule = Rule::any;
    double from = 0.0;
    double to = 0.0;
};

// Both sides of a joint, an entry for each element.
struct JointShape {
    std::vector<ElementShape> first;
    std::vector<ElementShape> second;
    double slack = 0.0; // how far a list may be off and still be right, drawing units
};

// The shape of a cross, tee or corner of a kind (which a corner has none of). The walls have outer
// elements and cross at an angle. Inner elements follow the tools: in a merged joint an inner line
// reaches, or is opened, as deep as it lies within its own wall.
[[nodiscard]] JointShape jointShape(const JoinPlace& place, JoinKind kind, const JoinPair& walls);

// The outer element of the bar that a stem meets first.
[[nodiscard]] unsigned nearElement(const JoinPlace& tee, const JoinPair& walls);

// The element of the second wall that joins element `i` of the first in a corner.
[[nodiscard]] unsigned cornerPartner(const JoinPlace& corner, const JoinPair& walls, unsigned i);

// Whether an element's list is as its shape asks, and whether it is drawn without a gap, or open,
// from one distance to another.
[[nodiscard]] bool fits(const JoinWall& wall, unsigned segment, unsigned element,
                        const ElementShape& shape, double slack);
[[nodiscard]] bool isDrawn(const JoinWall& wall, unsigned segment, unsigned element, double from,
                           double to, double slack);
[[nodiscard]] bool isOpen(const JoinWall& wall, unsigned segment, unsigned element, double from,
                          double to, double slack);

// How far beside a gap the line has to be drawn for the place to count as joined.
[[nodiscard]] double edgeLength(const JoinWall& wall, unsigned segment, double slack);

} // namespace orvex
