#pragma once

#include "Failure.h"
#include "MlineContent.h"

#include <span>

namespace orvex {

// The multiline with these breaks of one element on one segment (both from 0): distances from the
// element's own position at the segment's start at which drawn stretches begin and end in turn; a
// last one without an end runs to the end of the segment, no distance at all draws nothing.
// Refuses a segment or an element that isn't there, and distances that aren't finite or don't
// ascend.
Result<MlineContent> withBreaks(const MlineContent& mline, unsigned segment, unsigned element,
                                std::span<const double> distances);

} // namespace orvex
