#include "jointShape.h"

#include <algorithm>
#include <limits>

namespace orvex {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

using Rule = ElementShape::Rule;

// The lines of both walls at the place.
class Lines {
public:
    Lines(const JoinPlace& place, const JoinPair& walls)
        : m_first(tracks(walls.first, place.first.segment)),
          m_second(tracks(walls.second, place.second.segment)) {}

    [[nodiscard]] unsigned firstCount() const { return static_cast<unsigned>(m_first.size()); }
    [[nodiscard]] unsigned secondCount() const { return static_cast<unsigned>(m_second.size()); }
    // Where element i of the first meets element j of the second: along the first, along the
    // second.
    [[nodiscard]] double onFirst(unsigned i, unsigned j) const {
        return m_first[i].crossing(m_second[j]);
    }
    [[nodiscard]] double onSecond(unsigned i, unsigned j) const {
        return m_second[j].crossing(m_first[i]);
    }

private:
    static std::vector<PlanLine> tracks(const JoinWall& wall, unsigned segment) {
        std::vector<PlanLine> lines;
        for (unsigned e = 0; e < wall.elementCount(); ++e) {
            lines.push_back(wall.track(segment, e));
        }
        return lines;
    }

    std::vector<PlanLine> m_first;
    std::vector<PlanLine> m_second;
};

ElementShape between(Rule rule, double a, double b) {
    return {rule, std::min(a, b), std::max(a, b)};
}

ElementShape openPast(WallEnd end, double at) {
    return end == WallEnd::end ? ElementShape{Rule::open, at, kInfinity}
                               : ElementShape{Rule::open, -kInfinity, at};
}

// How deep an element lies from the nearer outer one.
unsigned depth(unsigned element, unsigned count) {
    return std::min(element, count - 1 - element);
}

void shapeCross(const Lines& lines, JoinKind kind, JointShape& shape) {
    const unsigned n1 = lines.firstCount();
    const unsigned n2 = lines.secondCount();
    const auto openFirst = [&](unsigned e, unsigned t) {
        shape.first[e] = between(Rule::open, lines.onFirst(e, t), lines.onFirst(e, n2 - 1 - t));
    };
    const auto setSecond = [&](Rule rule, unsigned e, unsigned t) {
        shape.second[e] = between(rule, lines.onSecond(t, e), lines.onSecond(n1 - 1 - t, e));
    };
    for (unsigned e = 0; e < n1; ++e) {
        const unsigned t = kind == JoinKind::merged ? std::min(depth(e, n1), (n2 - 1) / 2) : 0;
        if (2 * t != n2 - 1) {
            openFirst(e, t);
        }
    }
    const Rule outer = kind == JoinKind::closed ? Rule::drawn : Rule::open;
    setSecond(outer, 0, 0);
    setSecond(outer, n2 - 1, 0);
    for (unsigned e = 1; kind == JoinKind::merged && e + 1 < n2; ++e) {
        const unsigned t = std::min(depth(e, n2), (n1 - 1) / 2);
        if (2 * t != n1 - 1) {
            setSecond(Rule::open, e, t);
        }
    }
}

void shapeTee(const Lines& lines, JoinKind kind, WallEnd end, unsigned near, JointShape& shape) {
    const unsigned n1 = lines.firstCount();
    const unsigned n2 = lines.secondCount();
    const auto fromNear = [&](unsigned i) { return near == 0 ? i : n2 - 1 - i; };
    const bool merged = kind == JoinKind::merged;
    unsigned limit = std::min(n2 - 2, n1 / 2);
    limit = limit < 1 ? n2 - 1 : limit;
    for (unsigned e = 0; e < n1; ++e) {
        const unsigned t = merged ? std::min(depth(e, n1), limit) : 0;
        shape.first[e] = openPast(end, lines.onFirst(e, fromNear(t)));
    }
    const Rule rule = kind == JoinKind::closed ? Rule::drawn : Rule::open;
    const unsigned opened = merged ? std::min(limit, n1 / 2) : 1;
    for (unsigned i = 0; i < opened; ++i) {
        const unsigned e = fromNear(i);
        shape.second[e] = between(rule, lines.onSecond(i, e), lines.onSecond(n1 - 1 - i, e));
    }
}

// The element of the other wall, by the tools' rule; `keepStart` and the counts are those of the
// wall that has element `i`.
unsigned partner(unsigned i, unsigned n, unsigned m, bool oppositeEnds, bool keepStart) {
    if (i == 0) {
        return oppositeEnds ? 0 : m - 1;
    }
    if (i == n - 1) {
        return oppositeEnds ? m - 1 : 0;
    }
    if (n < m) {
        return keepStart ? i : m - 1 - i;
    }
    if (m == 2) {
        return keepStart ? 0 : 1;
    }
    if (oppositeEnds) {
        return i + 1 >= m ? m - 2 : i;
    }
    return i + 1 >= m ? 1 : m - 1 - i;
}

unsigned partnerOf(const JoinWall& own, const JoinSide& ownSide, const JoinWall& other,
                   const JoinSide& otherSide, unsigned i) {
    const unsigned m = other.elementCount();
    const bool opposite = ownSide.end != otherSide.end;
    const unsigned j = partner(i, own.elementCount(), m, opposite, ownSide.end == WallEnd::end);
    // Styles may list their elements from left or from right.
    const bool sameSense = own.firstIsLeft(ownSide.segment) == other.firstIsLeft(otherSide.segment);
    return sameSense ? j : m - 1 - j;
}

std::size_t firstEndingAfter(std::span<const double> list, double length, double distance) {
    const auto above = std::upper_bound(list.begin(), list.end(), distance);
    if (above != list.end()) {
        return static_cast<std::size_t>(above - list.begin()) & ~std::size_t{1};
    }
    const bool open = list.size() % 2 == 1;
    return open && length > distance ? list.size() - 1 : list.size();
}

double stretchEndAt(std::span<const double> list, double length, std::size_t begin) {
    return begin + 1 < list.size() ? list[begin + 1] : length;
}

} // namespace

unsigned nearElement(const JoinPlace& tee, const JoinPair& walls) {
    const PlanLine stem = walls.first.middle(tee.first.segment);
    const unsigned last = walls.second.lastElement();
    const double toFirst = stem.crossing(walls.second.track(tee.second.segment, 0));
    const double toLast = stem.crossing(walls.second.track(tee.second.segment, last));
    return (toFirst < toLast) == (tee.first.end == WallEnd::end) ? 0 : last;
}

unsigned cornerPartner(const JoinPlace& corner, const JoinPair& walls, unsigned i) {
    return partnerOf(walls.first, corner.first, walls.second, corner.second, i);
}

JointShape jointShape(const JoinPlace& place, JoinKind kind, const JoinPair& walls) {
    const Lines lines(place, walls);
    JointShape shape;
    shape.first.resize(lines.firstCount());
    shape.second.resize(lines.secondCount());
    const double sine = std::abs(cross(walls.first.axis(place.first.segment).direction,
                                       walls.second.axis(place.second.segment).direction));
    shape.slack = joinTolerance(walls.first, walls.second) / std::max(sine, 1e-3);
    if (place.kind == PlaceKind::cross) {
        shapeCross(lines, kind, shape);
    } else if (place.kind == PlaceKind::tee) {
        shapeTee(lines, kind, place.first.end, nearElement(place, walls), shape);
    } else if (place.kind == PlaceKind::corner) {
        for (unsigned i = 0; i < lines.firstCount(); ++i) {
            const unsigned j = cornerPartner(place, walls, i);
            shape.first[i] = openPast(place.first.end, lines.onFirst(i, j));
        }
        for (unsigned j = 0; j < lines.secondCount(); ++j) {
            const unsigned i = partnerOf(walls.second, place.second, walls.first, place.first, j);
            shape.second[j] = openPast(place.second.end, lines.onSecond(i, j));
        }
    }
    return shape;
}

double edgeLength(const JoinWall& wall, unsigned segment, double slack) {
    return std::max(4.0 * slack, 1e-6 * wall.halfWidth(segment));
}

bool isDrawn(const JoinWall& wall, unsigned segment, unsigned element, double from, double to,
             double slack) {
    const auto list = wall.stops(segment, element);
    const double length = wall.track(segment, element).length;
    double reached = from + slack;
    // Stretches that touch are one.
    for (std::size_t i = firstEndingAfter(list, length, reached);
         i < list.size() && list[i] <= reached; i += 2) {
        reached = std::max(reached, stretchEndAt(list, length, i) + slack);
    }
    return reached >= to;
}

bool isOpen(const JoinWall& wall, unsigned segment, unsigned element, double from, double to,
            double slack) {
    const auto list = wall.stops(segment, element);
    const double length = wall.track(segment, element).length;
    for (std::size_t i = firstEndingAfter(list, length, from + slack); i < list.size(); i += 2) {
        if (list[i] >= to - slack) {
            return true;
        }
        if (stretchEndAt(list, length, i) - std::max(list[i], from) > slack) {
            return false;
        }
    }
    return true;
}

bool fits(const JoinWall& wall, unsigned segment, unsigned element, const ElementShape& shape,
          double slack) {
    if (shape.rule == Rule::any) {
        return true;
    }
    if (shape.rule == Rule::drawn) {
        return isDrawn(wall, segment, element, shape.from, shape.to, slack);
    }
    const double edge = edgeLength(wall, segment, slack);
    const auto drawnTo = [&](double from, double to) {
        return isDrawn(wall, segment, element, from, to, slack);
    };
    return isOpen(wall, segment, element, shape.from, shape.to, slack) &&
           (std::isinf(shape.from) || drawnTo(shape.from - edge, shape.from)) &&
           (std::isinf(shape.to) || drawnTo(shape.to, shape.to + edge));
}

} // namespace orvex
