#pragma once

#include "Failure.h"
#include "MlineContent.h"
#include "StyleLayout.h"

#include <cstddef>

namespace orvex {

// Edits of one vertex of a chain. Elements keep their offsets, miters at both sides follow, and an
// open end keeps its angle to its segment. Gaps stay where they lie in the drawing as far as their
// segments still hold them; along a segment that turns they are measured halfway between its old
// direction and its new one, so that moving a vertex back leads back. Places are taken in the plane
// of the multiline. Each refuses what chainFrameOf refuses, vertices that fall together, and lists
// that don't ascend, since their gaps contradict each other.

struct VertexEdit {
    MlineContent mline;
    std::size_t lostGaps = 0; // that no segment holds as a whole any more, counted by element
};

Result<VertexEdit> withVertexMoved(const MlineContent& mline, const StyleLayout& style,
                                   unsigned vertex, const KdGePoint3d& place);

// A new vertex on the segment that leaves `vertex`; at the last one of an open chain on the one
// before.
Result<VertexEdit> withVertexAdded(const MlineContent& mline, const StyleLayout& style,
                                   unsigned vertex, const KdGePoint3d& place);

// Refuses to leave an open chain of fewer than two vertices, or a closed one of fewer than three.
// An end that is removed takes its segment along; the new end has the miter of the style.
Result<VertexEdit> withVertexRemoved(const MlineContent& mline, const StyleLayout& style,
                                     unsigned vertex);

// Gaps that end within their segments, counted by element.
std::size_t heldGaps(const MlineContent& mline);

} // namespace orvex
