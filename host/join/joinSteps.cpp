#include "joinSteps.h"

#include "jointShape.h"

#include <algorithm>
#include <array>
#include <limits>

namespace orvex {

namespace {

// The stem's end is doubtful this near the bar's axis, and moved so far short of it: in widths of
// the bar.
constexpr double kDoubtful = 0.125;
constexpr double kShortOfAxis = 0.25;
constexpr double kCrossings = 1e-9; // of the largest coordinate, around the axis

struct PickedSide {
    const JoinPlace& place;
    const JoinWall& wall;
    const JoinSide& side;
    const ElementShape& shape; // of element 0
};

// The nearest that another element comes to element 0 on a segment.
double elementGap(const JoinWall& wall, unsigned segment) {
    const PlanLine line = wall.axis(segment);
    double gap = 2.0 * wall.halfWidth(segment);
    for (unsigned e = 1; e < wall.elementCount(); ++e) {
        const double apart =
            std::abs(cross(line.direction, wall.position(segment, e) - wall.position(segment, 0)));
        if (apart > 1e-6 * gap) {
            gap = std::min(gap, apart);
        }
    }
    return gap;
}

// Where the part of an element lies that stays, along its track.
DrawnSpan keptPart(const PickedSide& s) {
    const double length = s.wall.track(s.side.segment, 0).length;
    if (s.side.end == WallEnd::end) {
        return {0.0, std::min(length, s.shape.from)};
    }
    if (s.side.end == WallEnd::start) {
        return {std::max(0.0, s.shape.to), length};
    }
    if (s.shape.rule == ElementShape::Rule::any) {
        return {0.0, length};
    }
    // The longer of the two parts beside the joint.
    const DrawnSpan before{0.0, s.shape.from};
    const DrawnSpan after{s.shape.to, length};
    return before.to - before.from >= after.to - after.from ? before : after;
}

// A distance on element 0, drawn for `radius` around it; in the middle of what stays, if that is
// drawn, so that both the crossing and the segment's end are far from it.
std::optional<double> pickDistance(const PickedSide& s, double radius) {
    const DrawnSpan kept = keptPart(s);
    constexpr std::array fractions{0.5, 0.375, 0.625, 0.25, 0.75, 0.125, 0.875, 0.05, 0.95};
    for (const double fraction : fractions) {
        const double at = kept.from + (kept.to - kept.from) * fraction;
        if (at - radius > kept.from && at + radius < kept.to &&
            isDrawn(s.wall, s.side.segment, 0, at - radius, at + radius, 0.0)) {
            return at;
        }
    }
    // Lists with many gaps: the middle of the longest stretch.
    DrawnSpan longest;
    for (const DrawnSpan& span : s.wall.drawn(s.side.segment, 0)) {
        const DrawnSpan part{std::max(span.from, kept.from), std::min(span.to, kept.to)};
        if (part.to - part.from > longest.to - longest.from) {
            longest = part;
        }
    }
    return longest.to - longest.from > 4.0 * radius
               ? std::optional((longest.from + longest.to) * 0.5)
               : std::nullopt;
}

KdGePoint3d inWorld(PlanVector point, const JoinPlace& place) {
    return {point.x, point.y, place.height};
}

std::optional<JoinPick> pickOf(const PickedSide& s, double radius) {
    const auto at = pickDistance(s, radius);
    if (!at) {
        return std::nullopt;
    }
    const PlanVector point = s.wall.track(s.side.segment, 0).at(*at);
    return JoinPick{s.side.wall, inWorld(point, s.place), s.side.segment, 0};
}

std::string_view toolOf(const JoinPlace& place) {
    if (place.kind == PlaceKind::corner) {
        return "CJ";
    }
    const bool cross = place.kind == PlaceKind::cross;
    switch (place.style) {
    case JoinKind::closed:
        return cross ? "CC" : "CT";
    case JoinKind::merged:
        return cross ? "MC" : "MT";
    default:
        return cross ? "OC" : "OT";
    }
}

// A stem whose end is a hair beside the bar's axis is refused by the tools: they take it neither
// for short nor for running through.
std::optional<PlanVector> endClearOfAxis(const JoinPlace& place, const JoinPair& walls) {
    const JoinSide& stem = place.first;
    const PlanLine line = walls.first.axis(stem.segment);
    const PlanLine bar = walls.second.axis(place.second.segment);
    const double axis = line.crossing(bar);
    const double end = stem.end == WallEnd::end ? line.length : 0.0;
    const double width = 2.0 * walls.second.halfWidth(place.second.segment);
    const double rounding =
        kCrossings * std::max(walls.first.largestCoordinate(), walls.second.largestCoordinate());
    if (std::abs(end - axis) > std::max(kDoubtful * width, rounding)) {
        return std::nullopt;
    }
    const double back = std::max(kShortOfAxis * width, 4.0 * rounding);
    return line.at(stem.end == WallEnd::end ? axis - back : axis + back);
}

// Nearer to the end than to the middle of the segment.
JoinEndMove moveOf(const JoinPlace& place, const JoinWall& stem, PlanVector to, JoinPick pick) {
    const PlanLine track = stem.track(place.first.segment, 0);
    for (const double fraction : {0.75, 0.7, 0.8, 0.65, 0.85, 0.6, 0.9}) {
        const double at =
            track.length * (place.first.end == WallEnd::end ? fraction : 1.0 - fraction);
        const double around = 0.01 * track.length;
        if (isDrawn(stem, place.first.segment, 0, at - around, at + around, 0.0)) {
            pick.point = inWorld(track.at(at), place);
            break;
        }
    }
    return {pick, inWorld(to, place)};
}

} // namespace

std::optional<JoinSteps> joinSteps(const JoinPlace& place, const JoinWall& first,
                                   const JoinWall& second) {
    const JointShape shape = jointShape(place, place.style, {first, second});
    const double gap =
        std::min(elementGap(first, place.first.segment), elementGap(second, place.second.segment));
    const double radius = 0.05 * gap;
    const auto firstPick = pickOf({place, first, place.first, shape.first[0]}, radius);
    const auto secondPick = pickOf({place, second, place.second, shape.second[0]}, radius);
    if (!firstPick || !secondPick) {
        return std::nullopt;
    }
    JoinSteps steps;
    steps.tool = toolOf(place);
    steps.first = *firstPick;
    steps.second = *secondPick;
    steps.aperture = radius;
    if (place.kind == PlaceKind::tee) {
        if (const auto clear = endClearOfAxis(place, {first, second})) {
            steps.moves.push_back(moveOf(place, first, *clear, *firstPick));
        }
    }
    return steps;
}

} // namespace orvex
