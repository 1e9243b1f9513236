#include "matchPick.h"

#include "mlineTrack.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

KdGePoint3d footOf(const KdGePoint3d& pick, const MlineTrack& track) {
    const KdGeVector3d from = pick - track.start;
    const KdGeVector3d& along = track.direction;
    return track.length > 0.0 ? track.at(from.x * along.x + from.y * along.y + from.z * along.z)
                              : track.start;
}

// The start counts, the end belongs to the next segment.
bool isInSpan(double foot, double start, double end) {
    return (foot >= start && foot < end) || (foot > end && foot <= start);
}

bool isNearSpan(double foot, double start, double end, double radius) {
    return foot >= std::min(start, end) - radius && foot <= std::max(start, end) + radius;
}

// The offset in front takes part in the search, as it does in the module.
bool isDrawnAt(std::span<const double> list, double distance) {
    const auto next = std::find_if(list.begin(), list.end(),
                                   [distance](double entry) { return entry > distance; });
    return (next - list.begin()) % 2 == 0 && next != list.begin();
}

bool matches(const MlineTrack& track, std::span<const double> list, const KdGePoint3d& pick,
             double radius, bool takesGaps) {
    const auto& [start, end, direction, length] = track;
    const KdGePoint3d foot = footOf(pick, track);
    if (!(radius > std::hypot(foot.x - pick.x, foot.y - pick.y))) {
        return false;
    }
    if (takesGaps) {
        return isNearSpan(foot.x, start.x, end.x, radius) &&
               isNearSpan(foot.y, start.y, end.y, radius);
    }
    return (isInSpan(foot.x, start.x, end.x) || isInSpan(foot.y, start.y, end.y)) &&
           isDrawnAt(list, (foot - start).length());
}

} // namespace

std::optional<PickMatch> matchPick(const MlineContent& mline, const KdGePoint3d& pick,
                                   double radius, bool takesGaps) {
    const MlineChain chain(mline);
    for (unsigned segment = 0; segment < chain.segmentCount(); ++segment) {
        for (unsigned element = 0; element < mline.elementCount(); ++element) {
            if (matches(chain.track(segment, element), chain.line(segment, element), pick, radius,
                        takesGaps)) {
                return PickMatch{segment, element};
            }
        }
    }
    return std::nullopt;
}

} // namespace orvex
