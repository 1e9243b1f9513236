#pragma once

#include "Failure.h"
#include "MlineContent.h"
#include "StyleLayout.h"

namespace orvex {

// The multiline with its axes, miters and elements where chain, style, scale and justification put
// them, and lists that ascend and end with their segments. Vertices, gaps and area lists stay where
// they lie in the drawing, an open end keeps the miter it has, and what lies right already, within
// the rounding of its coordinates, keeps every bit. So laying right twice is laying right once.
// Elements that the style doesn't have stay where they are. Refuses what chainFrameOf refuses.
Result<MlineContent> layRight(const MlineContent& mline, const StyleLayout& style);

} // namespace orvex
