#include "elementMatch.h"

#include "ChainFrame.h"
#include "breakLists.h"
#include "geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvex {

namespace {

constexpr double kFar = std::numeric_limits<double>::infinity();

struct Interval {
    double begin = -kFar; // along the segment from its vertex; infinite at the track's own end
    double end = kFar;

    friend bool operator==(const Interval&, const Interval&) = default;
};
using Intervals = std::vector<Interval>; // ascending, apart

Intervals united(Intervals all) {
    std::sort(all.begin(), all.end(),
              [](const Interval& a, const Interval& b) { return a.begin < b.begin; });
    Intervals result;
    for (const Interval& each : all) {
        if (!result.empty() && each.begin <= result.back().end) {
            result.back().end = std::max(result.back().end, each.end);
        } else {
            result.push_back(each);
        }
    }
    return result;
}

Intervals common(const Intervals& a, const Intervals& b) {
    Intervals result;
    for (const Interval& x : a) {
        for (const Interval& y : b) {
            const Interval both{std::max(x.begin, y.begin), std::min(x.end, y.end)};
            if (both.begin < both.end) {
                result.push_back(both);
            }
        }
    }
    return result;
}

// Where a list draws, measured along the segment from its vertex.
Intervals drawnBy(std::span<const double> list, const MlineTrack& track, double start,
                  bool isAlong) {
    Intervals drawn;
    const double tolerance = reachTolerance(track.length);
    const double sense = isAlong ? 1.0 : -1.0;
    forEachStretch(list, track.length, [&](const MlineStretch& stretch) {
        Interval interval;
        if (stretch.begin > tolerance) {
            interval.begin = start + sense * stretch.begin;
        }
        if (!stretch.toTrackEnd && stretch.end < track.length - tolerance) {
            interval.end = start + sense * stretch.end;
        }
        if (interval.begin < interval.end) {
            drawn.push_back(interval);
        }
    });
    return united(std::move(drawn));
}

std::vector<double> listOf(double position, const Intervals& drawn, double start, double length) {
    std::vector<double> list{position};
    for (const Interval& each : drawn) {
        const double begin = std::max(0.0, each.begin - start);
        const double end = each.end - start;
        if (begin >= std::min(end, length)) {
            continue;
        }
        list.push_back(begin);
        if (end < length) {
            list.push_back(end);
        }
    }
    return list;
}

class Matcher {
public:
    Matcher(const MlineContent& mline, const ChainFrame& frame, std::vector<std::size_t> nearest)
        : m_mline(mline), m_chain(mline), m_frame(frame), m_nearest(std::move(nearest)) {}

    MatchedMline run() {
        MatchedMline result{m_mline, false};
        for (unsigned v = 0; v < m_chain.vertexCount(); ++v) {
            result.mline.vertices[v].axis = m_frame.vertices[v].axis;
            result.mline.vertices[v].miter = m_frame.vertices[v].miter.direction;
        }
        for (unsigned v = 0; v < m_chain.vertexCount(); ++v) {
            result.mline.lists.setNested(v, record(v));
        }
        result.hasMovedGaps = m_hasMovedGaps;
        return result;
    }

private:
    [[nodiscard]] double positionAt(unsigned v, std::size_t element) const {
        return m_frame.distances[element] / m_frame.vertices[v].miter.sine;
    }
    [[nodiscard]] KdGePoint3d placeAt(unsigned v, std::size_t element) const {
        return m_chain.vertex(v).position +
               m_frame.vertices[v].miter.direction * positionAt(v, element);
    }
    [[nodiscard]] double along(unsigned v, const KdGePoint3d& place) const {
        return dot(place - m_chain.vertex(v).position, m_frame.vertices[v].axis);
    }

    // What each old element draws of a segment.
    [[nodiscard]] std::vector<Intervals> oldOf(unsigned s, bool areas) const {
        std::vector<Intervals> all;
        for (unsigned e = 0; e < m_chain.elementCount(); ++e) {
            const MlineTrack track = areas ? m_chain.areaTrack(s, e) : m_chain.track(s, e);
            const bool isAlong = dot(track.direction, m_frame.vertices[s].axis) > 0.0;
            all.push_back(drawnBy(areas ? m_chain.area(s, e) : m_chain.line(s, e), track,
                                  along(s, track.start), isAlong));
        }
        return all;
    }

    VoVector<KdMLSegment> record(unsigned v) {
        VoVector<KdMLSegment> record;
        const bool hasSegment = v < m_chain.segmentCount();
        const std::vector<Intervals> lines =
            hasSegment ? oldOf(v, false) : std::vector<Intervals>();
        const Intervals anyLine = hasSegment ? unitedOf(lines) : Intervals{{}};
        const bool hasAreas = m_chain.elementCount() > 0 && !m_chain.area(v, 0).empty();
        const Intervals anyArea = hasSegment ? unitedOf(oldOf(v, true)) : Intervals{{}};
        for (std::size_t e = 0; e < m_frame.distances.size(); ++e) {
            Intervals drawn = anyLine;
            for (std::size_t o = 0; o < lines.size(); ++o) {
                if (m_nearest[o] == e) {
                    drawn = common(drawn, lines[o]);
                }
            }
            m_hasMovedGaps = m_hasMovedGaps || drawn != anyLine;
            KdMLSegment element;
            element.m_lineParams = toParameters(listAt(v, e, drawn));
            if (hasAreas) {
                element.m_areaParams = toParameters(listAt(v, e, anyArea));
            }
            record.append(element);
        }
        return record;
    }
    [[nodiscard]] static Intervals unitedOf(const std::vector<Intervals>& all) {
        Intervals together;
        for (const Intervals& each : all) {
            together.insert(together.end(), each.begin(), each.end());
        }
        return united(std::move(together));
    }
    [[nodiscard]] std::vector<double> listAt(unsigned v, std::size_t element,
                                             const Intervals& drawn) const {
        const KdGePoint3d start = placeAt(v, element);
        const KdGePoint3d end = placeAt(m_chain.next(v), element);
        return listOf(positionAt(v, element), drawn, along(v, start), (end - start).length());
    }

    const MlineContent& m_mline;
    MlineChain m_chain;
    const ChainFrame& m_frame;
    std::vector<std::size_t> m_nearest; // new element of each old one
    bool m_hasMovedGaps = false;
};

// What old and new elements are compared by.
struct Places {
    std::vector<double> old;
    std::vector<double> fresh;
};

Places placesOf(const MlineContent& mline, const ChainFrame& frame, const StyleLayout& style,
                const StyleLayout* before) {
    if (before != nullptr && before->offsets.size() == mline.elementCount()) {
        return {before->offsets, style.offsets};
    }
    Places places{{}, frame.distances};
    for (unsigned e = 0; e < mline.elementCount(); ++e) {
        const auto list = mline.lists.line(0, e);
        places.old.push_back(
            list.empty() ? 0.0
                         : list.front() * dot(mline.vertices[0].miter, frame.vertices[0].left));
    }
    return places;
}

std::vector<std::size_t> nearestOf(const Places& places) {
    std::vector<std::size_t> nearest;
    for (const double place : places.old) {
        const auto closest =
            std::min_element(places.fresh.begin(), places.fresh.end(), [place](double a, double b) {
                return std::abs(a - place) < std::abs(b - place);
            });
        nearest.push_back(static_cast<std::size_t>(closest - places.fresh.begin()));
    }
    return nearest;
}

} // namespace

Result<MatchedMline> withElementsOf(const MlineContent& mline, const StyleLayout& style,
                                    const StyleLayout* before) {
    const Result<ChainFrame> frame = chainFrameOf(mline, style);
    if (!frame) {
        return frame.failure();
    }
    return Matcher(mline, *frame, nearestOf(placesOf(mline, *frame, style, before))).run();
}

} // namespace orvex
