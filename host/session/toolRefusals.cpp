#include "toolRefusals.h"

#include "mlineTrack.h"

#include <algorithm>
#include <vector>

namespace orvex {

namespace {

struct Side {
    KdGePoint3d from;
    KdGePoint3d to;
};

std::vector<Side> sidesOf(const MlineContent& mline) {
    const MlineChain chain(mline);
    std::vector<Side> sides;
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        sides.push_back({chain.vertex(s).position, chain.vertex(chain.next(s)).position});
    }
    return sides;
}

// Above 0 where the point lies to the left.
double sideOf(const Side& line, const KdGePoint3d& point) {
    return (line.to.x - line.from.x) * (point.y - line.from.y) -
           (line.to.y - line.from.y) * (point.x - line.from.x);
}

bool cross(const Side& a, const Side& b) {
    return sideOf(a, b.from) * sideOf(a, b.to) <= 0.0 && sideOf(b, a.from) * sideOf(b, a.to) <= 0.0;
}

bool chainsCross(const MlineContent& first, const MlineContent& second) {
    const std::vector<Side> others = sidesOf(second);
    for (const Side& side : sidesOf(first)) {
        if (std::any_of(others.begin(), others.end(),
                        [&](const Side& other) { return cross(side, other); })) {
            return true;
        }
    }
    return false;
}

} // namespace

bool refusesAsClosed(const ToolKind& tool, const MlineContent& mline, bool isFirst) {
    using Refuses = ToolKind::Refuses;
    return mline.closed && (tool.refuses == Refuses::closedBoth ||
                            (tool.refuses == Refuses::closedFirst && isFirst));
}

PickRefusal reasonOfNoChange(const ToolKind& tool, const MlineContent& first,
                             const MlineContent& last, bool isSame) {
    if (!tool.readsCrossing) {
        return PickRefusal::nothingChanged;
    }
    return isSame                      ? PickRefusal::sameMultiline
           : !chainsCross(first, last) ? PickRefusal::noCrossing
                                       : PickRefusal::nothingChanged;
}

} // namespace orvex
