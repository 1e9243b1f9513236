#include "layRight.h"

#include "ChainFrame.h"
#include "hostText.h"
#include "impossible.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvex {

namespace {

constexpr double kRounding = 4.0 * std::numeric_limits<double>::epsilon();

bool reachesTooFar(std::span<const double> list, double length) {
    return std::any_of(list.begin() + (list.empty() ? 0 : 1), list.end(),
                       [length](double value) { return value > length + kReachBeyond; });
}

void layDirections(MlineContent& laid, const ChainFrame& frame) {
    for (std::size_t v = 0; v < laid.vertices.size(); ++v) {
        ChainVertex& vertex = laid.vertices[v];
        const VertexFrame& right = frame.vertices[v];
        if ((vertex.axis - right.axis).length() > right.axisNoise + kRounding) {
            vertex.axis = right.axis;
        }
        if (miterDeviation(vertex.miter, right) > right.miterNoise + kRounding) {
            vertex.miter = right.miter.direction;
        }
    }
}

void putFirst(VoVector<double>& list, double value) {
    if (list.isEmpty()) {
        list.append(value);
    } else {
        list.setAt(0, value);
    }
}

// The positions along the miters. What lies along an old miter stays at its distance; areas that
// follow keep theirs from their line.
void layPositions(MlineContent& laid, const MlineContent& old, const ChainFrame& frame,
                  const ChainFrame& oldFrame, bool areasFollow) {
    for (unsigned v = 0; v < laid.vertices.size(); ++v) {
        const VertexFrame& right = frame.vertices[v];
        const KdGeVector3d& before = old.vertices[v].miter;
        const KdGeVector3d& after = laid.vertices[v].miter;
        const double sine = sineOf(after, right);
        const KdGeVector3d& leftBefore = oldFrame.vertices[v].left;
        const bool isTurned = !(before == after && leftBefore == right.left);
        const double turned = isTurned ? dot(leftBefore, before) / sine : 1.0;
        VoVector<KdMLSegment> record = old.lists.nested(v);
        bool changed = false;
        for (unsigned e = 0; e < record.size(); ++e) {
            KdMLSegment& element = record[static_cast<int>(e)];
            const std::span<const double> line = old.lists.line(v, e);
            const std::span<const double> area = old.lists.area(v, e);
            const double stored = line.empty() ? 0.0 : line.front() * turned;
            const bool isStyled = e < frame.distances.size();
            const double distance = isStyled ? frame.distances[e] : stored * sine;
            if (std::abs(stored * sine - distance) > kRounding * frame.largest || line.empty()) {
                putFirst(element.m_lineParams, distance / sine);
                changed = true;
            } else if (turned != 1.0) {
                putFirst(element.m_lineParams, stored);
                changed = true;
            }
            if (areasFollow && !area.empty() && !line.empty()) {
                const double fresh = element.m_lineParams[0];
                putFirst(element.m_areaParams, fresh + (area.front() - line.front()) * turned);
                changed = true;
            } else if (!area.empty() && turned != 1.0) {
                putFirst(element.m_areaParams, area.front() * turned);
                changed = true;
            }
        }
        if (changed) {
            laid.lists.setNested(v, record);
        }
    }
}

// At the same angle to another segment. A square one stays square to the last bit, so that moving
// an end to and fro doesn't wear it.
KdGeVector3d turnedMiter(const KdGeVector3d& miter, const VertexFrame& was,
                         const KdGeVector3d& axis, const KdGeVector3d& left) {
    const double along = dot(miter, was.axis);
    const double across = dot(miter, was.left);
    if (std::abs(along) > kRounding || std::abs(std::abs(across) - 1.0) > kRounding) {
        return axis * along + left * across;
    }
    return across > 0.0 ? left : KdGeVector3d() - left; // without a zero below zero
}

// The miter of an open end keeps its angle to its segment.
void turnEnds(MlineContent& changed, const ChainFrame& before) {
    std::vector<KdGePoint3d> points;
    for (const ChainVertex& vertex : changed.vertices) {
        points.push_back(vertex.position);
    }
    const std::vector<KdGeVector3d> axes = chainAxes(points, changed.closed);
    for (const std::size_t end : {std::size_t{0}, points.size() - 1}) {
        const VertexFrame& was = before.vertices[end];
        KdGeVector3d& miter = changed.vertices[end].miter;
        if (!changed.closed && (axes[end] - was.axis).length() > was.axisNoise + kRounding) {
            miter = turnedMiter(miter, was, axes[end], leftOf(axes[end], changed.normal));
        }
    }
}

// Elements that change their distances stay on their side where the chain turns straight back.
void keepSides(ChainFrame& frame, const ChainFrame& before) {
    for (std::size_t v = 0; v < frame.vertices.size(); ++v) {
        VertexFrame& fresh = frame.vertices[v];
        const VertexFrame& was = before.vertices[v];
        if (fresh.turnsBack && dot(fresh.axis, was.axis) > 0.0 && dot(fresh.left, was.left) < 0.0) {
            fresh.left = KdGeVector3d() - fresh.left;
            fresh.miter.direction = fresh.left;
        }
    }
}

bool isSameTrack(const MlineTrack& a, const MlineTrack& b) {
    return a.start == b.start && a.end == b.end;
}

std::vector<double> remeasuredList(std::span<const double> list, const MlineTrack& before,
                                   const MlineTrack& after, bool inJoint, GapMeasure measure) {
    if (isSameTrack(before, after)) {
        return {list.begin(), list.end()};
    }
    return remeasured(list, {before, after, true, inJoint, measure});
}

std::vector<double> repairedList(std::vector<double> list, double length, bool inJoint) {
    if (!ascends(list)) {
        list = inOrder(list);
    }
    if (!inJoint && reachesTooFar(list, length)) {
        list = cutAtEnd(list, length);
    }
    return list;
}

bool isSameList(std::span<const double> a, std::span<const double> b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
}

MlineTrack shifted(const MlineTrack& track, std::span<const KdGeVector3d> shifts,
                   unsigned segment) {
    if (segment >= shifts.size()) {
        return track;
    }
    const KdGeVector3d& shift = shifts[segment];
    return {track.start + shift, track.end + shift, track.direction, track.length};
}

// The breaks, once the positions are where they belong.
void layBreaks(MlineContent& laid, const MlineContent& old,
               std::span<const KdGeVector3d> shifts = {}, GapMeasure measure = GapMeasure::square) {
    const MlineChain oldChain(old);
    const MlineContent positioned = laid;
    const MlineChain chain(positioned);
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        const bool inJoint = endsInJoint(old, s);
        VoVector<KdMLSegment> record = positioned.lists.nested(s);
        bool changed = false;
        for (unsigned e = 0; e < record.size(); ++e) {
            KdMLSegment& element = record[static_cast<int>(e)];
            const MlineTrack track = chain.track(s, e);
            const auto line = chain.line(s, e);
            const std::vector<double> freshLine =
                repairedList(remeasuredList(line, shifted(oldChain.track(s, e), shifts, s), track,
                                            inJoint, measure),
                             track.length, inJoint);
            if (!isSameList(line, freshLine)) {
                element.m_lineParams = toParameters(freshLine);
                changed = true;
            }
            const auto area = chain.area(s, e);
            const std::vector<double> freshArea =
                remeasuredList(area, shifted(oldChain.areaTrack(s, e), shifts, s),
                               chain.areaTrack(s, e), true, measure);
            if (!isSameList(area, freshArea)) {
                element.m_areaParams = toParameters(freshArea);
                changed = true;
            }
        }
        if (changed) {
            laid.lists.setNested(s, record);
        }
    }
}

} // namespace

Result<MlineContent> layRight(const MlineContent& mline, const StyleLayout& style) {
    const Result<ChainFrame> frame = chainFrameOf(mline, style);
    if (!frame) {
        return frame.failure();
    }
    MlineContent laid = mline;
    layDirections(laid, *frame);
    layPositions(laid, mline, *frame, *frame, false);
    layBreaks(laid, mline);
    return laid;
}

Result<MlineContent> laidAnew(MlineContent changed, const MlineContent& old,
                              const StyleLayout& style, std::span<const KdGeVector3d> shifts,
                              GapMeasure measure) {
    const Result<ChainFrame> oldFrame = chainFrameOf(old, style);
    if (!oldFrame) {
        return oldFrame.failure();
    }
    turnEnds(changed, *oldFrame);
    Result<ChainFrame> frame = chainFrameOf(changed, style);
    if (!frame) {
        return frame.failure();
    }
    keepSides(*frame, *oldFrame);
    layDirections(changed, *frame);
    layPositions(changed, old, *frame, *oldFrame, true);
    layBreaks(changed, old, shifts, measure);
    if (!isFinite(changed)) {
        return impossible(hostText("a number in it would be too large"));
    }
    return changed;
}

} // namespace orvex
