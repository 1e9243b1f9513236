#pragma once

#include "Failure.h"
#include "MlineContent.h"

#include <optional>
#include <vector>

namespace orvex {

// The multiline without the part between the places of its chain nearest to two points: two, or
// one where the part reaches an end. A closed one loses what leads from the first place to the
// second and is open then. Without a second point it is parted at the first, or where that lies in
// a gap of all elements at both sides of the gap. New ends are square and without caps; all else
// stays where it is. Refuses what chainFrameOf refuses, gaps that contradict each other,
// and to leave nothing or everything.
Result<std::vector<MlineContent>> broken(const MlineContent& mline, const KdGePoint3d& first,
                                         const std::optional<KdGePoint3d>& second);

// The first multiline with the second at that end which meets one of the second's, as they run or,
// where the scale is the negative one, with the second turned. Gaps stay. Refuses closed ones,
// those without ends in the same place, gaps that contradict each other, and another style, scale,
// justification or plane.
Result<MlineContent> connected(const MlineContent& first, const MlineContent& second);

} // namespace orvex
