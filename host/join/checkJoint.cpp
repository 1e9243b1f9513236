#include "checkJoint.h"

#include "jointShape.h"

#include <algorithm>
#include <limits>

namespace orvex {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

bool capsOff(const JoinWall& wall, const JoinSide& side) {
    return side.end == WallEnd::none || wall.capSuppressed(side.end);
}

bool sideFits(const JoinWall& wall, const JoinSide& side, const std::vector<ElementShape>& shape,
              double slack, bool outerOnly) {
    const unsigned step = outerOnly ? std::max(wall.lastElement(), 1U) : 1;
    for (unsigned e = 0; e < wall.elementCount(); e += step) {
        if (!fits(wall, side.segment, e, shape[e], slack)) {
            return false;
        }
    }
    return true;
}

bool isJoinedAs(const JoinPlace& place, JoinKind kind, const JoinPair& walls, bool outerOnly) {
    const JointShape shape = jointShape(place, kind, walls);
    return capsOff(walls.first, place.first) && capsOff(walls.second, place.second) &&
           sideFits(walls.first, place.first, shape.first, shape.slack, outerOnly) &&
           sideFits(walls.second, place.second, shape.second, shape.slack, outerOnly);
}

// The stretches that an element is to have, along its line as it is now.
class TargetSpans {
public:
    TargetSpans(const JoinWall& before, const JoinWall& now, unsigned segment, unsigned element,
                double slack)
        : m_slack(slack) {
        const PlanLine was = before.track(segment, element);
        const PlanLine is = now.track(segment, element);
        const double shift = is.along(was.start);
        const auto list = before.stops(segment, element);
        m_spans.reserve(list.size() / 2 + 2);
        for (std::size_t i = 0; i < list.size(); i += 2) {
            // What begins or ends with the segment goes on doing so.
            const double from = std::abs(list[i]) <= slack ? 0.0 : list[i] + shift;
            const bool open = i + 1 == list.size();
            const double to = open ? kInfinity : list[i + 1] + shift;
            m_spans.push_back({from, to});
        }
    }

    // At an end that is joined the line goes on as far as the joint lets it.
    void produce(WallEnd end) {
        if (end == WallEnd::start && !m_spans.empty()) {
            m_spans.front().from = -kInfinity;
        } else if (end == WallEnd::end && !m_spans.empty()) {
            m_spans.back().to = kInfinity;
        }
    }

    void open(double from, double to) {
        std::vector<DrawnSpan> rest;
        rest.reserve(m_spans.size() + 1);
        for (const DrawnSpan& span : m_spans) {
            if (std::min(span.to, from) - span.from > m_slack) {
                rest.push_back({span.from, std::min(span.to, from)});
            }
            if (span.to - std::max(span.from, to) > m_slack) {
                rest.push_back({std::max(span.from, to), span.to});
            }
        }
        m_spans = std::move(rest);
    }

    [[nodiscard]] std::vector<double> stops() const {
        std::vector<double> list;
        for (const DrawnSpan& span : m_spans) {
            list.push_back(span.from);
            if (!std::isinf(span.to)) {
                list.push_back(span.to);
            }
        }
        return list;
    }

    [[nodiscard]] bool areDrawnBy(const JoinWall& now, unsigned segment, unsigned element) const {
        const double length = now.track(segment, element).length;
        std::size_t next = 0;
        for (const DrawnSpan& span : now.drawn(segment, element)) {
            if (span.to - span.from <= m_slack) {
                continue;
            }
            if (next == m_spans.size() || !isSame(m_spans[next], span, length)) {
                return false;
            }
            ++next;
        }
        return next == m_spans.size();
    }

private:
    [[nodiscard]] bool isSame(const DrawnSpan& target, const DrawnSpan& drawn,
                              double length) const {
        const double to = std::isinf(target.to) ? length : target.to;
        return std::abs(target.from - drawn.from) <= m_slack && std::abs(to - drawn.to) <= m_slack;
    }

    double m_slack;
    std::vector<DrawnSpan> m_spans;
};

struct SideChange {
    const JoinSide* side = nullptr;
    const std::vector<ElementShape>* shape = nullptr;
};

// A long bar has many stops, and a joint changes few of its lines.
bool isUntouched(const JoinWall& before, const JoinWall& now, unsigned segment, unsigned element) {
    const unsigned next = now.nextVertex(segment);
    return before.position(segment, element) == now.position(segment, element) &&
           before.position(next, element) == now.position(next, element) &&
           std::ranges::equal(before.stops(segment, element), now.stops(segment, element));
}

// The same lists but for an opening in a stretch that was drawn, as joints on a long bar leave
// them.
bool isOnlyOpened(const JoinWall& before, const JoinWall& now, unsigned segment, unsigned element,
                  const ElementShape& opening, double slack) {
    const unsigned next = now.nextVertex(segment);
    const auto was = before.stops(segment, element);
    const auto is = now.stops(segment, element);
    const auto head =
        static_cast<std::size_t>(std::ranges::lower_bound(was, opening.from - slack) - was.begin());
    const auto isAt = [&](double stop, double wanted) { return std::abs(stop - wanted) <= slack; };
    return before.position(segment, element) == now.position(segment, element) &&
           before.position(next, element) == now.position(next, element) &&
           is.size() == was.size() + 2 && head % 2 == 1 &&
           (head == was.size() || was[head] > opening.to + slack) && isAt(is[head], opening.from) &&
           isAt(is[head + 1], opening.to) && std::ranges::equal(was.first(head), is.first(head)) &&
           std::ranges::equal(was.subspan(head), is.subspan(head + 2));
}

void renewWall(const JoinWall& before, const JoinWall& now, unsigned wall, double slack,
               std::span<const SideChange> changes, std::vector<RenewedStops>& renewed) {
    for (unsigned s = 0; s < now.segmentCount(); ++s) {
        for (unsigned e = 0; e < now.elementCount(); ++e) {
            const auto changesLine = [s, e](const SideChange& change) {
                return change.side->segment == s &&
                       (*change.shape)[e].rule == ElementShape::Rule::open;
            };
            if (std::ranges::none_of(changes, changesLine) && isUntouched(before, now, s, e)) {
                continue;
            }
            if (changes.size() == 1 && changesLine(changes[0]) &&
                isOnlyOpened(before, now, s, e, (*changes[0].shape)[e], slack)) {
                continue;
            }
            TargetSpans target(before, now, s, e, slack);
            for (const SideChange& change : changes) {
                const ElementShape& shape = (*change.shape)[e];
                if (changesLine(change)) {
                    target.produce(change.side->end);
                    target.open(shape.from, shape.to);
                }
            }
            if (!target.areDrawnBy(now, s, e)) {
                renewed.push_back({wall, now.handle(), s, e, target.stops()});
            }
        }
    }
}

} // namespace

bool isJoined(const JoinPlace& place, const JoinPair& walls) {
    return isJoinedAs(place, place.style, walls, false);
}

bool isJoinedInAnyKind(const JoinPlace& place, const JoinPair& walls) {
    if (isJoinedAs(place, JoinKind::open, walls, true)) {
        return true;
    }
    if (place.kind == PlaceKind::corner) {
        return false;
    }
    if (isJoinedAs(place, JoinKind::closed, walls, true)) {
        return true;
    }
    if (place.kind == PlaceKind::tee) {
        return false;
    }
    JoinPlace turned = place;
    std::swap(turned.first, turned.second);
    return isJoinedAs(turned, JoinKind::closed, {walls.second, walls.first}, true);
}

bool keepsSegments(const JoinWall& before, const JoinWall& now) {
    return before.vertexCount() == now.vertexCount() && before.isClosed() == now.isClosed() &&
           before.elementCount() == now.elementCount();
}

bool keepsLines(const JoinWall& before, const JoinWall& now) {
    const double slack = joinTolerance(before, now);
    for (unsigned s = 0; s < now.segmentCount(); ++s) {
        for (unsigned e = 0; e < now.elementCount(); ++e) {
            const PlanLine was = before.track(s, e);
            const PlanLine is = now.track(s, e);
            if (was.length > 0.0 && (std::abs(was.aside(is.start)) > slack ||
                                     std::abs(was.aside(is.at(is.length))) > slack)) {
                return false;
            }
        }
    }
    return true;
}

std::vector<RenewedStops> renewedStops(const JoinPlace& place, const JoinPair& before,
                                       const JoinPair& now) {
    const JointShape shape = jointShape(place, place.style, now);
    const SideChange first{&place.first, &shape.first};
    const SideChange second{&place.second, &shape.second};
    std::vector<RenewedStops> renewed;
    if (place.first.wall == place.second.wall) {
        const std::array changes{first, second};
        renewWall(before.first, now.first, place.first.wall, shape.slack, changes, renewed);
    } else {
        renewWall(before.first, now.first, place.first.wall, shape.slack, {&first, 1}, renewed);
        renewWall(before.second, now.second, place.second.wall, shape.slack, {&second, 1}, renewed);
    }
    return renewed;
}

} // namespace orvex
