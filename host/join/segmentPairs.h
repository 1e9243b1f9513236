#pragma once

#include "PlanSegment.h"

#include <optional>
#include <utility>

namespace orvex {

// Two segments, the lower index first.
using SegmentPair = std::pair<unsigned, unsigned>;

// How near two walls have to come to be looked at: half the width of the narrower, or what was
// asked for.
[[nodiscard]] double pairTolerance(const PlanSegment& a, const PlanSegment& b,
                                   std::optional<double> tolerance);

// All pairs of segments that can meet, each once, ascending; some that don't, none missing. By a
// packed tree of boxes: long slanted strips are cut into pieces, open ends are grown as far as an
// end can reach.
[[nodiscard]] std::vector<SegmentPair> segmentPairs(std::span<const PlanSegment> segments,
                                                    std::optional<double> tolerance);

} // namespace orvex
