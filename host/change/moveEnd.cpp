#include "moveEnd.h"

#include "breakLists.h"
#include "chainMiter.h"
#include "hostText.h"
#include "impossible.h"

#include <cmath>

namespace orvex {

namespace {

// The lists of the end's segment, measured on where its tracks are now.
void remeasureSegment(MlineContent& moved, const MlineContent& old, unsigned segment,
                      bool isShorter) {
    const MlineChain before(old);
    const MlineContent positioned = moved;
    const MlineChain after(positioned);
    VoVector<KdMLSegment> record = old.lists.nested(segment);
    const bool mayLeave = !isShorter; // what lay outside may do so, but nothing new does
    for (unsigned e = 0; e < record.size(); ++e) {
        KdMLSegment& element = record[static_cast<int>(e)];
        const TrackMove line{before.track(segment, e), after.track(segment, e), mayLeave, mayLeave};
        element.m_lineParams = toParameters(remeasured(before.line(segment, e), line));
        const TrackMove area{before.areaTrack(segment, e), after.areaTrack(segment, e), mayLeave,
                             mayLeave};
        element.m_areaParams = toParameters(remeasured(before.area(segment, e), area));
    }
    moved.lists.setNested(segment, record);
}

} // namespace

Result<MlineContent> moveEnd(const MlineContent& mline, MlineEnd end, const KdGePoint3d& target) {
    const MlineChain chain(mline);
    const unsigned count = chain.vertexCount();
    if (count < 2) {
        return impossible(hostText("it has fewer than two vertices"));
    }
    if (chain.isClosed()) {
        return impossible(hostText("it is closed and has no ends"));
    }
    const unsigned movedVertex = end == MlineEnd::start ? 0 : count - 1;
    const unsigned fixedVertex = end == MlineEnd::start ? 1 : count - 2;
    const KdGePoint3d& from = mline.vertices[movedVertex].position;
    const KdGePoint3d& fixed = mline.vertices[fixedVertex].position;
    KdGeVector3d way = from - fixed;
    const double oldLength = way.length();
    way.normalize();
    const double length = dot(target - fixed, way);
    if (!std::isfinite(oldLength) || !std::isfinite(length)) {
        return impossible(hostText("a number in it isn't finite"));
    }
    if (KdGeVector3d(way * oldLength).isZeroLength()) {
        return impossible(hostText("its last segment has no length"));
    }
    if (!(length > reachTolerance(oldLength))) {
        return impossible(hostText("the place lies at or beyond the segment's other vertex"));
    }
    MlineContent moved = mline;
    // From the end's own place, so that an end moved to where it is stays there to the bit.
    moved.vertices[movedVertex].position = from + way * dot(target - from, way);
    remeasureSegment(moved, mline, end == MlineEnd::start ? 0 : count - 2, length < oldLength);
    return moved;
}

} // namespace orvex
