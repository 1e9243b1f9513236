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
constexpr unsigned kFirstMoving = 2; // the attempt from which ends are moved in any case
constexpr double kCrossings = 1e-9;  // of the largest coordinate, around the axis

struct PickedSide {
    const JoinPlace& place;
    const JoinWall& wall;
    const JoinSide& side;
    const ElementShape& shape; // of element 0
    // Along element 0: where it meets the other wall's element 0, by which the tools tell the side
    // that stays, and where it lies across from the crossing of the chains.
    double meeting = 0.0;
    double node = 0.0;
    bool isNear = true; // picks close to the joint are tried first
};

// The least distance between two elements of a segment that don't coincide.
double elementGap(const JoinWall& wall, unsigned segment) {
    const PlanLine line = wall.axis(segment);
    std::vector<double> sides;
    for (unsigned e = 0; e < wall.elementCount(); ++e) {
        sides.push_back(line.aside(wall.position(segment, e)));
    }
    std::sort(sides.begin(), sides.end());
    const double width = sides.back() - sides.front();
    double gap = width;
    for (std::size_t i = 1; i < sides.size(); ++i) {
        const double apart = sides[i] - sides[i - 1];
        gap = apart > 1e-6 * width ? std::min(gap, apart) : gap;
    }
    return gap;
}

// Where the part of element 0 lies that may be picked, along its track: what stays of a wall that
// ends here, all of one that goes on.
DrawnSpan keptPart(const PickedSide& s) {
    const double length = s.wall.track(s.side.segment, 0).length;
    if (s.side.end == WallEnd::end) {
        return {0.0, std::min({length, s.shape.from, s.meeting})};
    }
    if (s.side.end == WallEnd::start) {
        return {std::max({0.0, s.shape.to, s.meeting}), length};
    }
    return {0.0, length};
}

// Distances along element 0, the best first. Of several crossings of two walls the tools take the
// one with the least way to both picks, so close to the joint none comes in between; the middle of
// what stays is farthest from all that rounding might turn.
std::vector<double> placesToPick(const PickedSide& s) {
    const DrawnSpan kept = keptPart(s);
    const double length = kept.to - kept.from;
    std::vector<double> places;
    if (!s.isNear) {
        for (const double part : {0.5, 0.375, 0.625, 0.25, 0.75, 0.125, 0.875, 0.05, 0.95}) {
            places.push_back(kept.from + length * part);
        }
    } else if (s.side.end == WallEnd::none) {
        const double width = 2.0 * s.wall.halfWidth(s.side.segment);
        places.push_back(s.node);
        for (const double widths : {0.125, 0.375, 0.75, 1.5, 3.0, 6.0, 12.0, 24.0}) {
            places.push_back(s.node + widths * width);
            places.push_back(s.node - widths * width);
        }
    } else {
        for (const double part : {0.125, 0.0625, 0.25, 0.375, 0.5, 0.625, 0.75, 0.875, 0.95}) {
            places.push_back(s.side.end == WallEnd::end ? kept.to - length * part
                                                        : kept.from + length * part);
        }
    }
    return places;
}

// Whether a pick finds no other segment of the wall: the tools take the first one in their circle.
bool isClear(const PickedSide& s, PlanVector point, double radius) {
    for (unsigned segment = 0; segment < s.wall.segmentCount(); ++segment) {
        for (unsigned e = 0; segment != s.side.segment && e < s.wall.elementCount(); ++e) {
            const PlanLine line = s.wall.track(segment, e);
            const double along = std::clamp(line.along(point), 0.0, line.length);
            if ((line.at(along) - point).length() <= radius) {
                return false;
            }
        }
    }
    return true;
}

// Whether a pick this far along an element finds it.
bool isFoundAt(const PickedSide& s, unsigned element, double at, double radius) {
    const PlanLine line = s.wall.track(s.side.segment, element);
    return at > radius && at + radius < line.length &&
           isDrawn(s.wall, s.side.segment, element, at - radius, at + radius, 0.0) &&
           isClear(s, line.at(at), radius);
}

// The tools take the offset of an element for the first of its stops, so that they may find nothing
// nearer to the segment's start than that.
double offsetOf(const PickedSide& s, unsigned element) {
    return (s.wall.position(s.side.segment, element) - s.wall.vertex(s.side.segment)).length();
}

// A place on an element, across from where element 0 may be picked.
std::optional<PlanVector> pickPlace(const PickedSide& s, unsigned element, double radius,
                                    bool passesOffset) {
    const DrawnSpan kept = keptPart(s);
    const PlanLine first = s.wall.track(s.side.segment, 0);
    const PlanLine line = s.wall.track(s.side.segment, element);
    const double least = passesOffset ? offsetOf(s, element) + radius : 0.0;
    const auto placeAcross = [&](double at) -> std::optional<PlanVector> {
        const double distance = line.along(first.at(at));
        const bool isFound = at - radius > kept.from && at + radius < kept.to && distance > least &&
                             isFoundAt(s, element, distance, radius);
        return isFound ? std::optional(line.at(distance)) : std::nullopt;
    };
    for (const double at : placesToPick(s)) {
        if (const auto place = placeAcross(at)) {
            return place;
        }
    }
    // Lists with many gaps: the middle of the longest stretch.
    DrawnSpan longest;
    for (const DrawnSpan& span : s.wall.drawn(s.side.segment, element)) {
        longest = span.to - span.from > longest.to - longest.from ? span : longest;
    }
    return placeAcross(first.along(line.at((longest.from + longest.to) * 0.5)));
}

KdGePoint3d inWorld(PlanVector point, const JoinPlace& place) {
    return {point.x, point.y, place.height};
}

std::optional<JoinPick> pickOf(const PickedSide& s, double radius) {
    for (const bool passesOffset : {true, false}) {
        for (unsigned e = 0; e < s.wall.elementCount(); ++e) {
            if (const auto point = pickPlace(s, e, radius, passesOffset)) {
                return JoinPick{s.side.wall, inWorld(*point, s.place), s.side.segment, e};
            }
        }
    }
    return std::nullopt;
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

// How far short of the joint an end is moved at an attempt, in widths of the other wall. Far from
// the origin the tools' sense of the side that stays hangs on the last bit of a crossing, which
// another length of the wall turns.
double widthsShort(unsigned attempt) {
    constexpr double kStep = 0.0703125;
    return kShortOfAxis + (attempt > kFirstMoving ? kStep * (attempt - kFirstMoving) : 0.0);
}

// A stem whose end is a hair beside the bar's axis is refused by the tools: they take it neither
// for short nor for running through. Where an end is moved to, clear of that.
std::optional<PlanVector> endClearOfAxis(const JoinWall& wall, const JoinSide& side,
                                         const JoinWall& otherWall, const JoinSide& other,
                                         unsigned attempt) {
    const PlanLine line = wall.axis(side.segment);
    const double axis = line.crossing(otherWall.axis(other.segment));
    const double end = side.end == WallEnd::end ? line.length : 0.0;
    const double width = 2.0 * otherWall.halfWidth(other.segment);
    const double rounding =
        kCrossings * std::max(wall.largestCoordinate(), otherWall.largestCoordinate());
    if (attempt < kFirstMoving && std::abs(end - axis) > std::max(kDoubtful * width, rounding)) {
        return std::nullopt;
    }
    const double back = std::max(widthsShort(attempt) * width, 4.0 * rounding);
    const double to = side.end == WallEnd::end ? axis - back : axis + back;
    return to > 0.0 && to < std::max(line.length, axis) ? std::optional(line.at(to)) : std::nullopt;
}

// Nearer to the end than to the middle of the segment.
JoinEndMove moveOf(const JoinPlace& place, const JoinWall& wall, const JoinSide& side,
                   PlanVector to, JoinPick pick) {
    const PlanLine track = wall.track(side.segment, 0);
    for (const double fraction : {0.75, 0.7, 0.8, 0.65, 0.85, 0.6, 0.9}) {
        const double at = track.length * (side.end == WallEnd::end ? fraction : 1.0 - fraction);
        const double around = 0.01 * track.length;
        if (isDrawn(wall, side.segment, 0, at - around, at + around, 0.0)) {
            pick.point = inWorld(track.at(at), place);
            break;
        }
    }
    return {pick, inWorld(to, place)};
}

} // namespace

std::optional<JoinSteps> joinSteps(const JoinPlace& place, const JoinWall& first,
                                   const JoinWall& second, unsigned attempt) {
    const JointShape shape = jointShape(place, place.style, {first, second});
    const double gap =
        std::min(elementGap(first, place.first.segment), elementGap(second, place.second.segment));
    const double radius = 0.05 * gap;
    const PlanLine line = first.track(place.first.segment, 0);
    const PlanLine other = second.track(place.second.segment, 0);
    const PlanLine axis = first.axis(place.first.segment);
    const PlanVector node = axis.at(axis.crossing(second.axis(place.second.segment)));
    const bool isNear = attempt % 2 == 0;
    const auto firstPick = pickOf(
        {place, first, place.first, shape.first[0], line.crossing(other), line.along(node), isNear},
        radius);
    const auto secondPick = pickOf({place, second, place.second, shape.second[0],
                                    other.crossing(line), other.along(node), isNear},
                                   radius);
    if (!firstPick || !secondPick) {
        return std::nullopt;
    }
    JoinSteps steps;
    steps.tool = toolOf(place);
    steps.first = *firstPick;
    steps.second = *secondPick;
    steps.aperture = radius;
    const auto moveClear = [&](const JoinWall& wall, const JoinSide& side, const JoinWall& bar,
                               const JoinSide& barSide, const JoinPick& pick) {
        if (const auto clear = endClearOfAxis(wall, side, bar, barSide, attempt)) {
            steps.moves.push_back(moveOf(place, wall, side, *clear, pick));
        }
    };
    if (place.kind == PlaceKind::tee ||
        (place.kind == PlaceKind::corner && attempt >= kFirstMoving)) {
        moveClear(first, place.first, second, place.second, *firstPick);
    }
    if (place.kind == PlaceKind::corner && attempt >= kFirstMoving) {
        moveClear(second, place.second, first, place.first, *secondPick);
    }
    return steps;
}

} // namespace orvex
