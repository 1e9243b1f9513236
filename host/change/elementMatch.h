#pragma once

#include "Failure.h"
#include "MlineContent.h"
#include "StyleLayout.h"

namespace orvex {

struct MatchedMline {
    MlineContent mline;
    bool hasMovedGaps = false; // gaps of single elements are now in others
};

// The multiline, whose scale and justification are those of `style` already, with as many elements
// as that style has, where it wants them. Gaps of all elements stay where they lie in the drawing
// as gaps of all; each other one goes to the nearest element: by offset where `before`, the style
// until now, tells the offsets, else by the distance from the chain. Areas that all of it had are
// areas of the new elements. Refuses what chainFrameOf refuses.
Result<MatchedMline> withElementsOf(const MlineContent& mline, const StyleLayout& style,
                                    const StyleLayout* before);

} // namespace orvex
