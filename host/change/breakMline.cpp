#include "breakMline.h"

#include "ChainFrame.h"
#include "ChainPart.h"
#include "breakLists.h"
#include "geometry.h"
#include "hostText.h"
#include "impossible.h"
#include "reverse.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvex {

namespace {

constexpr double kFar = std::numeric_limits<double>::infinity();
constexpr double kSameDirection = 1e-9;

struct ChainPlace {
    unsigned segment = 0;
    double distance = 0.0; // along the chain from the segment's vertex
};

class Breaker {
public:
    explicit Breaker(const MlineContent& mline) : m_mline(mline), m_chain(mline) {}

    [[nodiscard]] ChainPlace placeNear(const KdGePoint3d& point) const {
        ChainPlace nearest;
        double least = kFar;
        for (unsigned s = 0; s < m_chain.segmentCount(); ++s) {
            const KdGeVector3d way = point - m_chain.vertex(s).position;
            const double distance = std::clamp(dot(way, m_chain.vertex(s).axis), 0.0, lengthOf(s));
            const double off = (point - at({s, distance})).length();
            if (off < least) {
                least = off;
                nearest = {s, distance};
            }
        }
        return nearest;
    }

    struct Gap {
        ChainPlace from;
        ChainPlace to;
    };
    // Of all elements around a place; both ends are the place itself where there is none.
    [[nodiscard]] Gap gapAt(const ChainPlace& place) const {
        const KdGePoint3d point = at(place);
        double from = -place.distance;
        double to = lengthOf(place.segment) - place.distance;
        for (unsigned e = 0; e < m_chain.elementCount(); ++e) {
            const MlineTrack track = m_chain.track(place.segment, e);
            const double here = dot(point - track.start, track.direction);
            const double reach = reachTolerance(track.length);
            // At a bend the place may lie beyond the end of a track that has no gap there.
            forEachStretch(
                m_chain.line(place.segment, e), track.length, [&](const MlineStretch& stretch) {
                    const bool toEnd = stretch.toTrackEnd || stretch.end >= track.length - reach;
                    const double begin = stretch.begin <= reach ? -kFar : stretch.begin;
                    const double end = toEnd ? kFar : stretch.end;
                    if (end <= here) {
                        from = std::max(from, end - here);
                    } else if (begin >= here) {
                        to = std::min(to, begin - here);
                    } else {
                        from = kFar;
                    }
                });
        }
        if (!(from < to)) {
            return {place, place};
        }
        return {{place.segment, place.distance + from}, {place.segment, place.distance + to}};
    }

    [[nodiscard]] bool isBehind(const ChainPlace& a, const ChainPlace& b) const {
        return a.segment != b.segment ? a.segment > b.segment : a.distance > b.distance;
    }
    [[nodiscard]] bool isStart(const ChainPlace& place) const {
        return place.segment == 0 && place.distance <= tolerance();
    }
    [[nodiscard]] bool isEnd(const ChainPlace& place) const {
        return place.segment + 1 == m_chain.segmentCount() &&
               place.distance >= lengthOf(place.segment) - tolerance();
    }

    [[nodiscard]] MlineContent upTo(const ChainPlace& end) const {
        ChainPart part(m_mline);
        part.addVertex(m_mline, 0, 0);
        addRest(part, 1, end);
        return withoutCaps(part.finished(), false, true);
    }
    [[nodiscard]] MlineContent from(const ChainPlace& start) const {
        ChainPart part(m_mline);
        const unsigned next = addStart(part, start);
        for (unsigned v = next; v < m_chain.vertexCount(); ++v) {
            part.addVertex(m_mline, v, v);
        }
        return withoutCaps(part.finished(), true, false);
    }
    // Of a closed chain, by way of its first vertex where `end` doesn't lie after `start`.
    [[nodiscard]] MlineContent between(ChainPlace start, ChainPlace end) const {
        start = leaving(start);
        end = arriving(end);
        ChainPart part(m_mline);
        unsigned next = addStart(part, start);
        if (!isBehind(end, start)) {
            for (; next < m_chain.vertexCount(); ++next) {
                part.addVertex(m_mline, next, next);
            }
            part.addVertex(m_mline, 0, 0);
            next = 1;
        }
        addRest(part, next, end);
        return withoutCaps(part.finished(), true, true);
    }

private:
    [[nodiscard]] double lengthOf(unsigned segment) const {
        return (m_chain.vertex(m_chain.next(segment)).position - m_chain.vertex(segment).position)
            .length();
    }
    [[nodiscard]] KdGePoint3d at(const ChainPlace& place) const {
        const ChainVertex& vertex = m_chain.vertex(place.segment);
        return vertex.position + vertex.axis * place.distance;
    }
    [[nodiscard]] double tolerance() const { return reachTolerance(0.0); }

    // A place on a vertex, as the start of the segment after it or the end of the one before.
    [[nodiscard]] ChainPlace leaving(const ChainPlace& place) const {
        const bool isAtEnd = place.distance >= lengthOf(place.segment) - tolerance();
        return isAtEnd ? ChainPlace{m_chain.next(place.segment), 0.0} : place;
    }
    [[nodiscard]] ChainPlace arriving(const ChainPlace& place) const {
        if (place.distance > tolerance()) {
            return place;
        }
        const unsigned count = m_chain.vertexCount();
        const unsigned before = (place.segment + count - 1) % count;
        return {before, lengthOf(before)};
    }
    // The vertex that comes next.
    unsigned addStart(ChainPart& part, const ChainPlace& place) const {
        const ChainPlace start = leaving(place);
        part.addPlace(m_mline, start.segment, at(start));
        return start.segment + 1;
    }
    void addRest(ChainPart& part, unsigned next, const ChainPlace& place) const {
        const ChainPlace end = arriving(place);
        for (unsigned v = next; v <= end.segment; ++v) {
            part.addVertex(m_mline, v, v);
        }
        part.addPlace(m_mline, end.segment, at(end));
    }
    static MlineContent withoutCaps(MlineContent part, bool atStart, bool atEnd) {
        part.startCapsSuppressed = part.startCapsSuppressed || atStart;
        part.endCapsSuppressed = part.endCapsSuppressed || atEnd;
        return part;
    }

    const MlineContent& m_mline;
    MlineChain m_chain;
};

Result<std::vector<MlineContent>> partsBeside(const MlineContent& mline, const Breaker& breaker,
                                              Breaker::Gap gap) {
    if (mline.closed) {
        return std::vector<MlineContent>{breaker.between(gap.to, gap.from)};
    }
    if (breaker.isBehind(gap.from, gap.to)) {
        std::swap(gap.from, gap.to);
    }
    if (breaker.isEnd(gap.from) || breaker.isStart(gap.to)) {
        return impossible(hostText("it ends there already"));
    }
    std::vector<MlineContent> parts;
    if (!breaker.isStart(gap.from)) {
        parts.push_back(breaker.upTo(gap.from));
    }
    if (!breaker.isEnd(gap.to)) {
        parts.push_back(breaker.from(gap.to));
    }
    if (parts.empty()) {
        return impossible(hostText("nothing would be left of it"));
    }
    return parts;
}

bool meet(const ChainVertex& a, const ChainVertex& b) {
    return (a.position - b.position).length() <=
           reachTolerance((a.position - KdGePoint3d()).length());
}

MlineContent chained(const MlineContent& first, const MlineContent& second) {
    ChainPart part(first);
    for (unsigned v = 0; v + 1 < first.vertices.size(); ++v) {
        part.addVertex(first, v, v);
    }
    part.addJoint(first, second);
    for (unsigned v = 1; v < second.vertices.size(); ++v) {
        part.addVertex(second, v, v);
    }
    MlineContent result = part.finished();
    result.startCapsSuppressed = first.startCapsSuppressed;
    result.endCapsSuppressed = second.endCapsSuppressed;
    return result;
}

} // namespace

Result<std::vector<MlineContent>> broken(const MlineContent& mline, const KdGePoint3d& first,
                                         const std::optional<KdGePoint3d>& second) {
    if (const auto frame = chainFrameOf(mline, {}); !frame) {
        return frame.failure();
    }
    if (const auto contradiction = gapContradiction(mline)) {
        return *contradiction;
    }
    const Breaker breaker(mline);
    const ChainPlace place = breaker.placeNear(first);
    const Breaker::Gap gap =
        second ? Breaker::Gap{place, breaker.placeNear(*second)} : breaker.gapAt(place);
    Result<std::vector<MlineContent>> parts = partsBeside(mline, breaker, gap);
    for (std::size_t i = 0; parts && i < parts->size(); ++i) {
        if (!chainFrameOf((*parts)[i], {})) {
            return impossible(hostText("a part would have no length"));
        }
    }
    return parts;
}

Result<MlineContent> connected(const MlineContent& first, const MlineContent& second) {
    for (const MlineContent* const each : {&first, &second}) {
        if (const auto frame = chainFrameOf(*each, {}); !frame) {
            return frame.failure();
        }
        if (each->closed) {
            return impossible(hostText("a closed one has no ends"));
        }
        if (const auto contradiction = gapContradiction(*each)) {
            return *contradiction;
        }
    }
    if (first.style != second.style || first.justification != second.justification ||
        std::abs(first.scale) != std::abs(second.scale) ||
        first.elementCount() != second.elementCount() ||
        (first.normal - second.normal).length() > kSameDirection) {
        return impossible(hostText("style, scale and justification don't agree"));
    }
    MlineContent other = second;
    if (first.scale != second.scale) {
        other = *reversed(second);
    }
    if (meet(first.vertices.back(), other.vertices.front())) {
        return chained(first, other);
    }
    if (meet(other.vertices.back(), first.vertices.front())) {
        return chained(other, first);
    }
    const bool meetOtherwise = meet(first.vertices.front(), other.vertices.front()) ||
                               meet(first.vertices.back(), other.vertices.back());
    return impossible(meetOtherwise ? hostText("they run against each other")
                                    : hostText("their ends don't meet"));
}

} // namespace orvex
