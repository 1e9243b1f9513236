#pragma once

#include "Failure.h"
#include "MlineContent.h"
#include "StyleLayout.h"

#include <functional>

namespace orvex {

// The multiline with those vertices shifted that are chosen. Its elements keep their offsets.
// Segments of which both vertices go take their gaps along; elsewhere gaps stay where they lie in
// the drawing, as far as the segment still holds them. Refuses what chainFrameOf refuses, and gaps
// that contradict each other.
Result<MlineContent> stretched(const MlineContent& mline, const StyleLayout& style,
                               const std::function<bool(const KdGePoint3d&)>& isChosen,
                               const KdGeVector3d& shift);

} // namespace orvex
