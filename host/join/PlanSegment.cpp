#include "PlanSegment.h"

#include <algorithm>

namespace orvex {

namespace {

// The distance along the middle line at which the outer lines of a joined end stop.
double drawnEnd(const JoinWall& wall, const PlanSegment& segment, WallEnd end, double otherwise) {
    if (!wall.capSuppressed(end)) {
        return otherwise;
    }
    double sum = 0.0;
    for (const unsigned element : {0U, wall.lastElement()}) {
        const auto list = wall.stops(segment.segment, element);
        if (list.empty()) {
            return otherwise;
        }
        const PlanLine& line = segment.outer[element == 0 ? 0 : 1];
        const double stop = end == WallEnd::start  ? list.front()
                            : list.size() % 2 == 1 ? line.length
                                                   : list.back();
        sum += segment.middle.along(line.at(stop));
    }
    return std::isfinite(sum) ? sum / 2.0 : otherwise;
}

PlanSegment planSegment(const JoinWall& wall, unsigned index, unsigned s) {
    PlanSegment segment;
    segment.wall = index;
    segment.segment = s;
    segment.endVertex = wall.nextVertex(s);
    segment.middle = wall.middle(s);
    segment.outer = {wall.track(s, 0), wall.track(s, wall.lastElement())};
    segment.half = wall.halfWidth(s);
    segment.atFrom = wall.endAtStart(s);
    segment.atTo = wall.endAtEnd(s);
    segment.from = drawnEnd(wall, segment, segment.atFrom, 0.0);
    segment.to = drawnEnd(wall, segment, segment.atTo, segment.middle.length);
    return segment;
}

struct Shadow {
    double low = 0.0;
    double high = 0.0;
};

Shadow shadow(const PlanSegment& segment, PlanVector origin, PlanVector direction) {
    const double a = dot(segment.middle.at(segment.from) - origin, direction);
    const double b = dot(segment.middle.at(segment.to) - origin, direction);
    const double side = segment.half * std::abs(cross(segment.middle.direction, direction));
    return {std::min(a, b) - side, std::max(a, b) + side};
}

} // namespace

std::vector<PlanSegment> planSegments(std::span<const JoinWall> walls) {
    std::vector<PlanSegment> segments;
    segments.reserve(walls.size());
    for (unsigned w = 0; w < walls.size(); ++w) {
        const JoinWall& wall = walls[w];
        for (unsigned s = 0; wall.isUsable() && s < wall.segmentCount(); ++s) {
            if (wall.axis(s).length > joinTolerance(wall, wall)) {
                segments.push_back(planSegment(wall, w, s));
            }
        }
    }
    return segments;
}

bool stripsOverlap(const PlanSegment& a, const PlanSegment& b, double slack) {
    const std::array directions{a.middle.direction, a.middle.direction.left(), b.middle.direction,
                                b.middle.direction.left()};
    for (const PlanVector direction : directions) {
        const Shadow first = shadow(a, a.middle.start, direction);
        const Shadow second = shadow(b, a.middle.start, direction);
        if (std::min(first.high, second.high) - std::max(first.low, second.low) <= slack) {
            return false;
        }
    }
    return true;
}

} // namespace orvex
