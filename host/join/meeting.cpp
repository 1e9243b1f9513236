#include "meeting.h"

#include <algorithm>
#include <limits>

namespace orvex {

namespace {

// Below this sine of the angle between them two walls run along each other.
constexpr double kParallel = 0.01;
// Corners with less than 15 degrees between them and a straight line.
constexpr double kNearlyStraight = -0.9659258262890683;
// Strips that cross at a small angle overlap over a great length; no end is looked for farther
// than this many half widths from the crossing.
constexpr double kLongestHalf = 8.0;
constexpr double kLongestObtuse = 1.5;

enum class Relation { away, passes, atFrom, atTo, atBoth, bendAtFrom, bendAtTo };

struct Interval {
    double low = 0.0;
    double high = 0.0;
};

// Where the strip of `b` crosses the middle line of `a`.
Interval stripOn(const PlanSegment& a, const PlanSegment& b) {
    const double first = a.middle.crossing(b.outer[0]);
    const double last = a.middle.crossing(b.outer[1]);
    const double center = (first + last) * 0.5;
    const double half = std::min(std::abs(first - last) * 0.5, kLongestHalf * b.half);
    return {center - half, center + half};
}

enum class EndRelation { before, at, after, bend }; // the segment's end against the strip

// How far an open end may be short of the strip, or over it, and still be at it.
struct Margins {
    double shortBy = 0.0;
    double over = 0.0;
};

EndRelation endAgainst(double position, WallEnd end, const Interval& strip, double below,
                       double above) {
    const bool open = end != WallEnd::none;
    if (position < strip.low - (open ? below : 0.0)) {
        return EndRelation::before;
    }
    if (position > strip.high + (open ? above : 0.0)) {
        return EndRelation::after;
    }
    return open ? EndRelation::at : EndRelation::bend;
}

Relation relate(const PlanSegment& a, const Interval& strip, const Margins& margins) {
    const EndRelation from = endAgainst(a.from, a.atFrom, strip, margins.over, margins.shortBy);
    const EndRelation to = endAgainst(a.to, a.atTo, strip, margins.shortBy, margins.over);
    if (from == EndRelation::after || to == EndRelation::before) {
        return Relation::away;
    }
    if (from == EndRelation::bend || to == EndRelation::bend) {
        return from == EndRelation::bend ? Relation::bendAtFrom : Relation::bendAtTo;
    }
    if (from == EndRelation::at) {
        return to == EndRelation::at ? Relation::atBoth : Relation::atFrom;
    }
    return to == EndRelation::at ? Relation::atTo : Relation::passes;
}

bool isEnd(Relation relation) {
    return relation == Relation::atFrom || relation == Relation::atTo;
}

bool isBend(Relation relation) {
    return relation == Relation::bendAtFrom || relation == Relation::bendAtTo;
}

JoinSide sideOf(const PlanSegment& a, Relation relation) {
    JoinSide side{a.wall, a.segment, WallEnd::none};
    if (relation == Relation::atFrom) {
        side.end = a.atFrom;
    } else if (relation == Relation::atTo) {
        side.end = a.atTo;
    }
    return side;
}

double shortOf(const PlanSegment& a, Relation relation, const Interval& strip) {
    const double end = relation == Relation::atTo ? a.to : a.from;
    return std::max({0.0, strip.low - end, end - strip.high});
}

// From the other end of `a` to the strip.
double nearLineOf(Relation relation, const Interval& strip) {
    return relation == Relation::atTo ? strip.low : -strip.high;
}

// Whether the ends of a corner are near enough to where they are to meet.
bool cornerIsNear(const PlanSegment& a, Relation atA, const PlanSegment& b, Relation atB,
                  double tolerance) {
    const double endA = atA == Relation::atTo ? a.to : a.from;
    const double endB = atB == Relation::atTo ? b.to : b.from;
    const bool same = (atA == Relation::atTo) == (atB == Relation::atTo);
    const double cosine = dot(a.middle.direction, b.middle.direction) * (same ? 1.0 : -1.0);
    if (cosine >= 0.0) {
        return true;
    }
    if (cosine < kNearlyStraight) {
        return (a.middle.at(endA) - b.middle.at(endB)).length() <= tolerance;
    }
    return std::abs(a.middle.crossing(b.middle) - endA) <= tolerance + kLongestObtuse * b.half &&
           std::abs(b.middle.crossing(a.middle) - endB) <= tolerance + kLongestObtuse * a.half;
}

std::optional<Meeting> parallelMeeting(const PlanSegment& a, const PlanSegment& b, double tolerance,
                                       double rounding) {
    const PlanVector endA = b.middle.at(b.from);
    const PlanVector endB = b.middle.at(b.to);
    const bool turned = a.middle.along(endA) > a.middle.along(endB);
    const Interval other{a.middle.along(turned ? endB : endA),
                         a.middle.along(turned ? endA : endB)};
    const Interval common{std::max(a.from, other.low), std::min(a.to, other.high)};
    // Sideways, over the common part.
    const double slope = (a.middle.aside(endB) - a.middle.aside(endA)) /
                         (a.middle.along(endB) - a.middle.along(endA));
    const auto sideAt = [&](double along) {
        return a.middle.aside(endA) + slope * (along - a.middle.along(endA));
    };
    const double sideLow = sideAt(common.low);
    const double sideHigh = sideAt(common.high);
    const double apart =
        sideLow * sideHigh <= 0.0 ? 0.0 : std::min(std::abs(sideLow), std::abs(sideHigh));
    if (apart >= a.half + b.half - rounding) {
        return std::nullopt;
    }
    Meeting meeting;
    meeting.kind = PlaceKind::overlap;
    meeting.reason = JoinReason::alongside;
    meeting.a = {a.wall, a.segment, WallEnd::none};
    meeting.b = {b.wall, b.segment, WallEnd::none};
    meeting.at = a.middle.at((common.low + common.high) * 0.5);
    const bool aIsFirst = a.to - other.low < other.high - a.from;
    if (common.high - common.low <= rounding) {
        // In one line: told where open ends face each other.
        meeting.a.end = aIsFirst ? a.atTo : a.atFrom;
        meeting.b.end = aIsFirst == turned ? b.atTo : b.atFrom;
        const bool facing = meeting.a.end != WallEnd::none && meeting.b.end != WallEnd::none;
        return facing && common.low - common.high <= tolerance + rounding ? std::optional(meeting)
                                                                          : std::nullopt;
    }
    if (common.high - common.low <= 2.0 * tolerance + rounding) {
        // Ends that overlap a little face each other as well.
        meeting.a.end = aIsFirst ? a.atTo : a.atFrom;
        meeting.b.end = aIsFirst == turned ? b.atTo : b.atFrom;
    }
    const double same = 1e-6 * a.half + rounding;
    if (std::abs(a.from - other.low) <= same && std::abs(a.to - other.high) <= same &&
        std::abs(sideLow) <= same && std::abs(a.half - b.half) <= same) {
        meeting.reason = JoinReason::duplicate;
    }
    return meeting;
}

// The end of a segment's middle line that lies nearer to the other's.
struct NearEnd {
    double distance = 0.0;
    WallEnd end = WallEnd::none; // none at a bend
    unsigned vertex = 0;
};

NearEnd nearEnd(const PlanSegment& a, const PlanSegment& b) {
    // Between sharp bends of a wall that lies beside its chain a strip may end before it begins.
    const auto [low, high] = std::minmax(b.from, b.to);
    const auto distance = [&, low = low, high = high](double at) {
        const PlanVector point = a.middle.at(at);
        const double along = std::clamp(b.middle.along(point), low, high);
        return (b.middle.at(along) - point).length();
    };
    const double from = distance(a.from);
    const double to = distance(a.to);
    return from < to ? NearEnd{from, a.atFrom, a.segment} : NearEnd{to, a.atTo, a.endVertex};
}

// Strips that overlap but meet in no way that can be joined. With a bend nearby it is that.
Meeting overlapping(Meeting meeting, const PlanSegment& a, const PlanSegment& b) {
    const NearEnd endOfA = nearEnd(a, b);
    const NearEnd endOfB = nearEnd(b, a);
    meeting.a = {a.wall, a.segment, WallEnd::none};
    meeting.b = {b.wall, b.segment, WallEnd::none};
    meeting.kind = PlaceKind::overlap;
    meeting.reason = JoinReason::alongside;
    const bool aBends = endOfA.end == WallEnd::none;
    const bool bBends = endOfB.end == WallEnd::none;
    if (aBends || bBends) {
        const bool ofA = aBends && (!bBends || endOfA.distance < endOfB.distance);
        meeting.kind = PlaceKind::cross;
        meeting.reason = JoinReason::bend;
        meeting.bendWall = ofA ? a.wall : b.wall;
        meeting.bendVertex = ofA ? endOfA.vertex : endOfB.vertex;
        meeting.at = ofA ? a.middle.at(endOfA.vertex == a.segment ? a.from : a.to)
                         : b.middle.at(endOfB.vertex == b.segment ? b.from : b.to);
    }
    return meeting;
}

PlaceKind kindOf(Relation atA, Relation atB) {
    return isEnd(atA) && isEnd(atB)   ? PlaceKind::corner
           : isEnd(atA) || isEnd(atB) ? PlaceKind::tee
                                      : PlaceKind::cross;
}

void noteBend(Meeting& meeting, const PlanSegment& bent, Relation relation) {
    meeting.bendWall = bent.wall;
    meeting.bendVertex = relation == Relation::bendAtTo ? bent.endVertex : bent.segment;
}

std::optional<Meeting> overlapOnly(Meeting meeting, const PlanSegment& a, const PlanSegment& b,
                                   JoinReason reason, double rounding) {
    if (!stripsOverlap(a, b, rounding)) {
        return std::nullopt;
    }
    meeting.reason = reason;
    return meeting;
}

} // namespace

double endReach(const PlanSegment& segment, std::optional<double> tolerance) {
    // Each of two ends lies within its tolerance and the other's strip of where they meet.
    return tolerance.value_or(segment.half) + kLongestHalf * segment.half;
}

std::optional<Meeting> meeting(const PlanSegment& a, const PlanSegment& b, double tolerance) {
    const PlanVector& near = a.middle.start;
    const PlanVector& far = b.middle.start;
    const double rounding = 16.0 * std::numeric_limits<double>::epsilon() *
                            std::max({std::abs(near.x), std::abs(near.y), std::abs(far.x),
                                      std::abs(far.y), a.middle.length, b.middle.length});
    const double sine = std::abs(cross(a.middle.direction, b.middle.direction));
    if (sine < kParallel) {
        return parallelMeeting(a, b, tolerance, rounding);
    }
    const double within = tolerance + rounding / sine;
    const Interval onA = stripOn(a, b);
    const Interval onB = stripOn(b, a);
    Relation atA = relate(a, onA, {within, within});
    Relation atB = relate(b, onB, {within, within});
    if (atA == Relation::away || atB == Relation::away) {
        if (!stripsOverlap(a, b, rounding)) {
            return std::nullopt;
        }
        // The middle of a slanting end is short by more than the tolerance, but a corner of it lies
        // in the other's strip.
        const double slant = std::abs(dot(a.middle.direction, b.middle.direction)) / sine;
        atA = relate(a, onA, {std::max(within, a.half * slant), within});
        atB = relate(b, onB, {std::max(within, b.half * slant), within});
    }
    Meeting meeting;
    meeting.at = a.middle.at(a.middle.crossing(b.middle));
    if (atA == Relation::away || atB == Relation::away) {
        return overlapping(meeting, a, b);
    }
    meeting.a = sideOf(a, atA);
    meeting.b = sideOf(b, atB);
    meeting.kind = kindOf(atA, atB);
    if (isBend(atA) || isBend(atB)) {
        noteBend(meeting, isBend(atA) ? a : b, isBend(atA) ? atA : atB);
        // An end that is short of a bend is told, too.
        return overlapOnly(meeting, a, b, JoinReason::bend,
                           meeting.kind == PlaceKind::cross ? rounding : -within);
    }
    if (atA == Relation::atBoth || atB == Relation::atBoth) {
        return overlapOnly(meeting, a, b, JoinReason::bothEnds, rounding);
    }
    if (meeting.kind == PlaceKind::tee) {
        // At a small angle the bar may end before it comes near the stem.
        if (!stripsOverlap(a, b, -within)) {
            return std::nullopt;
        }
        const bool stemIsA = isEnd(atA);
        meeting.shortBy = stemIsA ? shortOf(a, atA, onA) : shortOf(b, atB, onB);
        meeting.nearLine = stemIsA ? nearLineOf(atA, onA) : nearLineOf(atB, onB);
        if (!stemIsA) {
            std::swap(meeting.a, meeting.b); // the stem first
        }
    }
    if (meeting.kind == PlaceKind::corner && !cornerIsNear(a, atA, b, atB, tolerance)) {
        meeting.kind = PlaceKind::overlap;
        return overlapOnly(meeting, a, b, JoinReason::alongside, rounding);
    }
    return meeting;
}

} // namespace orvex
