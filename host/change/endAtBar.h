#pragma once

#include "moveEnd.h"

namespace orvex {

enum class BarLine { axis, outer };
enum class EndChange { extend, trim };

// The multiline with an open end moved along its segment to another multiline, the bar: to its
// chain, or to the side that the end comes to first. Extending goes on to the next of its segments,
// trimming back to the last one. Gaps of the bar don't matter. Refuses what moveEnd refuses, gaps
// that contradict each other, a bar in another plane, and where there is no such segment.
Result<MlineContent> endAtBar(const MlineContent& mline, MlineEnd end, const MlineContent& bar,
                              BarLine line, EndChange change);

} // namespace orvex
