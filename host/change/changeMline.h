#pragma once

#include "Failure.h"
#include "MlineContent.h"
#include "StyleLayout.h"

#include <optional>

namespace orvex {

// What MLCHANGE can change; what isn't there stays.
struct MlineChange {
    struct Style {
        KdDbObjectId id;
        StyleLayout layout;
    };
    std::optional<Style> style;
    std::optional<double> scale;
    std::optional<int> justification; // 0 top, 1 zero, 2 bottom
    std::optional<bool> closed;
    struct Caps {
        bool atStart = true;
        bool atEnd = true;
    };
    std::optional<Caps> caps;
    // A new justification moves the vertices instead of the lines that are drawn.
    bool keepsLines = false;
};

struct ChangedMline {
    MlineContent mline;
    bool hasMovedGaps = false; // gaps of single elements went to the nearest of the new ones
};

// The multiline with the change, laid right by its style (null when the drawing hasn't the one it
// has now). Gaps stay where they lie in the drawing. Where the new style has another number of
// elements, gaps of all elements are gaps of all, and those of a single one of the nearest by
// offset. Refuses a scale of 0 or beyond numbers, a missing style, one with more than 16 elements
// or none, closing fewer than three vertices, lists that don't ascend, lines to be kept under
// more than another justification or where the chain has no room for it, and what chainFrameOf
// refuses.
Result<ChangedMline> changed(const MlineContent& mline, const StyleLayout* style,
                             const MlineChange& change);

} // namespace orvex
