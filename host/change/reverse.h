#pragma once

#include "Failure.h"
#include "MlineContent.h"

namespace orvex {

// The same multiline with its chain run through the other way. Elements, which change sides, stay
// where they are by the negative scale, and so does everything else that is drawn but caps: those
// belong to the style's start and end. A closed one keeps its first vertex. Refuses one of fewer
// than two vertices, and gaps that contradict each other.
Result<MlineContent> reversed(const MlineContent& mline);

} // namespace orvex
