#pragma once

#include "Failure.h"
#include "MlineContent.h"
#include "StyleLayout.h"
#include "breakLists.h"

#include <span>

namespace orvex {

// The multiline with its axes, miters and elements where chain, style, scale and justification put
// them, and lists that ascend and end with their segments. Vertices, gaps and area lists stay where
// they lie in the drawing, an open end keeps the miter it has, and what lies right already, within
// the rounding of its coordinates, keeps every bit. So laying right twice is laying right once.
// Elements that the style doesn't have stay where they are. Refuses what chainFrameOf refuses.
Result<MlineContent> layRight(const MlineContent& mline, const StyleLayout& style);

// `old` with the vertices, the scale and the justification of `changed`, which has as many vertices
// and elements: laid right by `style`, with open ends at the angle to their segments that they had.
// Gaps stay where they lie in the drawing as far as their segments still hold them; those of a
// segment for which there is a shift are taken along by it.
Result<MlineContent> laidAnew(MlineContent changed, const MlineContent& old,
                              const StyleLayout& style, std::span<const KdGeVector3d> shifts = {},
                              GapMeasure measure = GapMeasure::square);

} // namespace orvex
