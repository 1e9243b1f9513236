#pragma once

#include "Appearance.h"
#include "KdGePoint3d.h"
#include "MlineContent.h"
#include "MlineStyleContent.h"

#include <span>

namespace orvex {

// Takes the parts of a multiline, in the space of its vertices.
class MlineSink {
public:
    virtual ~MlineSink() = default;

    virtual void fill(std::span<const KdGePoint3d> outline) = 0;
    virtual void elementLine(const KdGePoint3d& begin, const KdGePoint3d& end,
                             unsigned element) = 0;
    // A cap or a joint between two elements. The first half of the chain, up to the point in its
    // middle, belongs to the one, the second half to the other.
    virtual void crossing(std::span<const KdGePoint3d> chain, StrokeRole role, unsigned first,
                          unsigned second) = 0;
    // A cap that is half a circle, from centre + radius by centre + top to centre - radius. Comes
    // as a chain where it isn't taken as it is.
    virtual void halfCircle(const KdGePoint3d& center, const KdGeVector3d& radius,
                            const KdGeVector3d& top, unsigned first, unsigned second);
};

// What a multiline looks like: its fill, the stretches of its elements, caps, and joints, as its
// lists and its style say. Nothing is recomputed from style, scale or justification. `style` may
// be null; the multiline then has its element lines only.
void drawMline(const MlineContent& mline, const MlineStyleContent* style, MlineSink& sink);

} // namespace orvex
