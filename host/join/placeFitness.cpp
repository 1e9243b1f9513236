#include "placeFitness.h"

#include "jointShape.h"

#include <algorithm>
#include <array>

namespace orvex {

namespace {

using Rule = ElementShape::Rule;

// A corner may reach this many half widths.
constexpr double kLongestCorner = 10.0;
// An axis may cross the other this near its own far end, in half widths.
constexpr double kShortestLeg = 0.25;

struct Side {
    const JoinWall& wall;
    const JoinSide& side;
    const std::vector<ElementShape>& shape;
    const JoinWall& other;
    const JoinSide& otherSide;
};

void leave(JoinPlace& place, JoinReason reason, double has = 0.0, double needs = 0.0) {
    place.result = PlaceResult::left;
    place.reason = reason;
    place.has = has;
    place.needs = needs;
}

bool wallsAllow(JoinPlace& place, const JoinPair& walls) {
    const JoinWall& a = walls.first;
    const JoinWall& b = walls.second;
    if (!a.facesUp() || !b.facesUp()) {
        leave(place, JoinReason::normal);
    } else if (!a.isLevel() || !b.isLevel() ||
               std::abs(a.height() - b.height()) > joinTolerance(a, b)) {
        leave(place, JoinReason::plane, std::abs(a.height() - b.height()));
    } else if (a.elementCount() < 2 || b.elementCount() < 2) {
        leave(place, JoinReason::singleElement);
    } else if (!a.hasOuterElements() || !b.hasOuterElements()) {
        leave(place, JoinReason::outerElements);
    }
    return place.result != PlaceResult::left;
}

// The corner tool tells the part that stays by where the first elements cross, which may be past
// the other end where the walls are nearly in one line.
bool cornerLegAllows(JoinPlace& place, const Side& s) {
    const PlanLine line = s.wall.track(s.side.segment, 0);
    const double turn = line.crossing(s.other.track(s.otherSide.segment, 0));
    const bool atEnd = s.side.end == WallEnd::end;
    if (atEnd ? turn > 0.0 : turn < line.length) {
        return true;
    }
    const PlanLine middle = s.wall.middle(s.side.segment);
    const double at = middle.crossing(s.other.middle(s.otherSide.segment));
    leave(place, JoinReason::shortLeg, atEnd ? at : middle.length - at, std::abs(turn - at));
    return false;
}

// The corner's line runs from the crossing of the inner to that of the outer lines. Equal walls
// halve the angle; of unequal ones the wider is cut back where they are nearly in one line.
bool cornerAllows(JoinPlace& place, const JoinPair& walls) {
    const JoinWall& a = walls.first;
    const JoinWall& b = walls.second;
    const double halfA = a.halfWidth(place.first.segment);
    const double halfB = b.halfWidth(place.second.segment);
    const auto corner = [&](unsigned i) {
        const PlanLine line = a.track(place.first.segment, i);
        return line.at(
            line.crossing(b.track(place.second.segment, cornerPartner(place, walls, i))));
    };
    const PlanVector one = corner(0);
    const PlanVector other = corner(a.lastElement());
    const double limit = kLongestCorner * std::max(halfA, halfB);
    const PlanVector legA = a.axis(place.first.segment).direction;
    const PlanVector legB = b.axis(place.second.segment).direction;
    const bool opposite = place.first.end != place.second.end;
    const bool acute = dot(legA, legB) * (opposite ? -1.0 : 1.0) > 0.0;
    const bool equal = std::abs(halfA - halfB) <= 1e-6 * std::max(halfA, halfB);
    const double reach = acute || equal
                             ? std::max((one - place.at).length(), (other - place.at).length())
                             : (one - other).length();
    if (reach > limit) {
        leave(place, acute ? JoinReason::tooAcute : JoinReason::tooFlat, reach, limit);
    }
    return reach <= limit;
}

// The tools go by the chains: these have to cross on the bar, on one of two crossing walls at
// least, and ahead of the end that stays.
bool axesAllow(JoinPlace& place, const JoinPair& walls) {
    const PlanLine first = walls.first.axis(place.first.segment);
    const PlanLine second = walls.second.axis(place.second.segment);
    const double onFirst = first.crossing(second);
    const double onSecond = second.crossing(first);
    const auto within = [](const PlanLine& line, double at) {
        return at > 0.0 && at < line.length;
    };
    bool crosses = true;
    if (place.kind == PlaceKind::cross) {
        crosses = within(first, onFirst) || within(second, onSecond);
    } else if (place.kind == PlaceKind::tee) {
        crosses = within(second, onSecond);
    }
    if (!crosses) {
        leave(place, JoinReason::axis);
        return false;
    }
    const auto legStays = [&](const JoinWall& wall, const JoinSide& side, const PlanLine& line,
                              double at) {
        const double leg = side.end == WallEnd::start ? line.length - at : at;
        const double needs = kShortestLeg * wall.halfWidth(side.segment);
        if (side.end != WallEnd::none && leg <= needs) {
            leave(place, JoinReason::shortLeg, std::max(leg, 0.0), needs);
            return false;
        }
        return true;
    };
    return legStays(walls.first, place.first, first, onFirst) &&
           legStays(walls.second, place.second, second, onSecond);
}

// Whether what the joint takes lies on the segment.
bool legsAllow(JoinPlace& place, const Side& s, double slack) {
    const PlanLine middle = s.wall.middle(s.side.segment);
    const double at = middle.crossing(s.other.middle(s.otherSide.segment));
    for (const unsigned e : {0U, s.wall.lastElement()}) {
        const ElementShape& shape = s.shape[e];
        const double length = s.wall.track(s.side.segment, e).length;
        if (shape.rule == Rule::any) {
            continue;
        }
        // From the crossing of the middles: the leg that is there, and the reach of the joint.
        if (!std::isinf(shape.from) && shape.from <= slack) {
            leave(place, JoinReason::shortLeg, std::max(at, 0.0), at - shape.from);
            return false;
        }
        if (!std::isinf(shape.to) && shape.to >= length - slack) {
            leave(place, JoinReason::shortLeg, std::max(length - at, 0.0), shape.to - at);
            return false;
        }
    }
    return true;
}

// The end of a line that is to be joined there, as far as it is drawn.
bool endIsDrawn(const Side& s, unsigned e, double slack) {
    const ElementShape& shape = s.shape[e];
    const auto list = s.wall.stops(s.side.segment, e);
    const double length = s.wall.track(s.side.segment, e).length;
    const bool joinedBefore = s.wall.capSuppressed(s.side.end) && !list.empty();
    const double edge = edgeLength(s.wall, s.side.segment, slack);
    if (s.side.end == WallEnd::end) {
        const double stop = list.size() % 2 == 1 || !joinedBefore ? length : list.back();
        const double to = std::min(shape.from, stop);
        return isDrawn(s.wall, s.side.segment, e, to - edge, to, slack);
    }
    const double from = std::max(shape.to, joinedBefore ? list.front() : 0.0);
    return isDrawn(s.wall, s.side.segment, e, from, from + edge, slack);
}

// Each outer line has to be whole at the place, or to be as the joint will make it.
bool linesAllow(JoinPlace& place, const Side& s, double slack) {
    for (const unsigned e : {0U, s.wall.lastElement()}) {
        const ElementShape& shape = s.shape[e];
        if (shape.rule == Rule::any || fits(s.wall, s.side.segment, e, shape, slack)) {
            continue;
        }
        const double edge = edgeLength(s.wall, s.side.segment, slack);
        const bool whole =
            s.side.end == WallEnd::none
                ? isDrawn(s.wall, s.side.segment, e, shape.from - edge, shape.to + edge, slack)
                : endIsDrawn(s, e, slack);
        if (!whole) {
            leave(place, JoinReason::gap);
            return false;
        }
    }
    return true;
}

bool isClosing(const JoinWall& wall, const JoinSide& side) {
    return wall.isClosed() && side.segment + 1 == wall.vertexCount();
}

// A cross tool never looks for the first wall's closing segment.
bool segmentsAllow(JoinPlace& place, const JoinPair& walls) {
    if (place.kind == PlaceKind::cross && isClosing(walls.first, place.first)) {
        leave(place, JoinReason::closing);
        return false;
    }
    // The corner tool works on the first and the last segment of one wall, and goes by the halves
    // in which they cross; neighbours it refuses.
    if (place.kind == PlaceKind::corner && place.first.wall == place.second.wall) {
        for (const JoinSide* side : {&place.first, &place.second}) {
            const PlanLine line = walls.first.track(side->segment, 0);
            const double middle = (walls.first.middle(side->segment).along(place.at));
            if ((side->end == WallEnd::end) != (middle > line.length * 0.5)) {
                leave(place, JoinReason::shortLeg, line.length, line.length * 2.0);
                return false;
            }
        }
    }
    return true;
}

} // namespace

void settlePlace(JoinPlace& place, const JoinPair& walls) {
    if (!wallsAllow(place, walls)) {
        return;
    }
    if (isJoinedInAnyKind(place, walls)) {
        place.result = PlaceResult::already;
        return;
    }
    const JointShape shape = jointShape(place, place.style, walls);
    const Side first{walls.first, place.first, shape.first, walls.second, place.second};
    const Side second{walls.second, place.second, shape.second, walls.first, place.first};
    if (!walls.first.hasStyle() || !walls.second.hasStyle()) {
        leave(place, JoinReason::style);
        return;
    }
    if (place.kind == PlaceKind::corner &&
        !(cornerAllows(place, walls) && cornerLegAllows(place, first) &&
          cornerLegAllows(place, second))) {
        return;
    }
    if (legsAllow(place, first, shape.slack) && legsAllow(place, second, shape.slack) &&
        axesAllow(place, walls) && segmentsAllow(place, walls) &&
        linesAllow(place, first, shape.slack)) {
        linesAllow(place, second, shape.slack);
    }
}

void addClaims(const JoinPlace& place, unsigned index, const JoinPair& walls,
               std::vector<Claim>& claims) {
    const JointShape shape = jointShape(place, place.style, walls);
    const auto add = [&](const JoinWall& wall, const JoinSide& side,
                         const std::vector<ElementShape>& shapes) {
        for (const unsigned e : {0U, wall.lastElement()}) {
            if (shapes[e].rule != Rule::any) {
                claims.push_back({side.wall, side.segment, e, shapes[e].from, shapes[e].to, index});
            }
        }
    };
    add(walls.first, place.first, shape.first);
    add(walls.second, place.second, shape.second);
}

} // namespace orvex
