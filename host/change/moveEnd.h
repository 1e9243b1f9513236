#pragma once

#include "Failure.h"
#include "MlineContent.h"

namespace orvex {

enum class MlineEnd { start, end };

// The multiline with an open end moved along its own segment to the foot of `target`. Axis, miter
// and offsets stay as they are, gaps where they lie in the drawing; what was drawn up to the end is
// drawn up to its new place. Refuses a closed one, fewer than two vertices, and a place at or
// beyond the segment's other vertex.
Result<MlineContent> moveEnd(const MlineContent& mline, MlineEnd end, const KdGePoint3d& target);

} // namespace orvex
