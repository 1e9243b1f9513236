#include "PlanSegment.h"

#include <algorithm>

namespace orvex {

namespace {

// How far along an outer line its strip ends: at a joined end where it stops, else at the vertex.
double outerEnd(const JoinWall& wall, unsigned segment, unsigned element, const PlanLine& line,
                bool atStart, WallEnd end) {
    const double vertex = atStart ? 0.0 : line.length;
    const auto list = wall.stops(segment, element);
    if (!wall.capSuppressed(end) || list.empty() || (!atStart && list.size() % 2 == 1)) {
        return vertex;
    }
    const double stop = atStart ? list.front() : list.back();
    return std::isfinite(stop) ? stop : vertex;
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
    const std::array<unsigned, 2> elements{0U, wall.lastElement()};
    std::array<PlanVector, 2> starts;
    std::array<PlanVector, 2> ends;
    for (std::size_t i = 0; i < 2; ++i) {
        const PlanLine& line = segment.outer[i];
        starts[i] = line.at(outerEnd(wall, s, elements[i], line, true, segment.atFrom));
        ends[i] = line.at(outerEnd(wall, s, elements[i], line, false, segment.atTo));
    }
    segment.corners = {starts[0], ends[0], ends[1], starts[1]};
    segment.from = (segment.middle.along(starts[0]) + segment.middle.along(starts[1])) * 0.5;
    segment.to = (segment.middle.along(ends[0]) + segment.middle.along(ends[1])) * 0.5;
    return segment;
}

struct Shadow {
    double low = 0.0;
    double high = 0.0;
};

Shadow shadow(const PlanSegment& segment, PlanVector origin, PlanVector direction) {
    Shadow shadow{dot(segment.corners[0] - origin, direction),
                  dot(segment.corners[0] - origin, direction)};
    for (const PlanVector corner : segment.corners) {
        const double at = dot(corner - origin, direction);
        shadow.low = std::min(shadow.low, at);
        shadow.high = std::max(shadow.high, at);
    }
    return shadow;
}

bool areApart(const PlanSegment& a, const PlanSegment& b, PlanVector across, double slack) {
    const Shadow first = shadow(a, a.corners[0], across);
    const Shadow second = shadow(b, a.corners[0], across);
    return std::min(first.high, second.high) - std::max(first.low, second.low) <= slack;
}

// Whether a line along a side of `a` keeps the two apart.
bool sideParts(const PlanSegment& a, const PlanSegment& b, double slack) {
    for (std::size_t i = 0; i < a.corners.size(); ++i) {
        const PlanVector side = a.corners[(i + 1) % a.corners.size()] - a.corners[i];
        const double length = side.length();
        if (length > 0.0 && areApart(a, b, side.left() * (1.0 / length), slack)) {
            return true;
        }
    }
    return false;
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
    // A short segment between sharp bends has lines that cross; its sides don't tell all.
    return !areApart(a, b, {1.0, 0.0}, slack) && !areApart(a, b, {0.0, 1.0}, slack) &&
           !sideParts(a, b, slack) && !sideParts(b, a, slack);
}

} // namespace orvex
