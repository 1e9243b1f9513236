#pragma once

#include "Failure.h"
#include "MlineContent.h"
#include "StyleLayout.h"
#include "chainMiter.h"

#include <vector>

namespace orvex {

// What its chain asks of a vertex.
struct VertexFrame {
    KdGeVector3d axis; // unit; at the last vertex of an open chain of the segment before
    // Unit, square to it. Where the chain turns straight back, the left of the one segment is the
    // right of the other: it is that of the segment before where the elements are stored like that.
    KdGeVector3d left;
    bool turnsBack = false;
    // That the elements' positions should lie on: halves the angle, at an open end as stored. An
    // end whose stored one lies along the segment has the style's.
    Miter miter;
    // By what rounded coordinates alone turn the directions, radians. Where a chain nearly turns
    // back the lefts of both segments nearly cancel, and their sum turns by more than they do.
    double axisNoise = 0.0;
    double miterNoise = 0.0;
};

struct ChainFrame {
    std::vector<VertexFrame> vertices;
    std::vector<double> distances; // of the style's elements from the chain, drawing units
    double largest = 0.0; // coordinate or distance, drawing units; what tolerances are part of
};

// Refuses a chain that puts its elements nowhere: of fewer than two vertices, with a segment
// without length, not in one plane square to the normal, or with numbers that aren't finite.
Result<ChainFrame> chainFrameOf(const MlineContent& mline, const StyleLayout& style);

// Whether all numbers of a multiline are finite.
bool isFinite(const MlineContent& mline);

// The sine of the angle between a stored miter and the line that it should lie on; 1 for one
// without length. Its sense doesn't matter.
double miterDeviation(const KdGeVector3d& stored, const VertexFrame& frame);

// How far square to the segment one unit along a stored miter leads, left positive.
double sineOf(const KdGeVector3d& stored, const VertexFrame& frame);

// Whether stretches at the end of this segment may go on beyond the elements' next positions: a
// joint, which suppresses the cap there, has them stop at another multiline's lines.
bool endsInJoint(const MlineContent& mline, unsigned segment);

} // namespace orvex
