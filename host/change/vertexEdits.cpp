#include "vertexEdits.h"

#include "ChainFrame.h"
#include "ChainPart.h"
#include "breakLists.h"
#include "chainMiter.h"
#include "hostText.h"
#include "impossible.h"
#include "layRight.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace orvex {

namespace {

constexpr unsigned kFewestClosed = 3;
constexpr unsigned kFewestOpen = 2;

// Nothing when the vertex can be edited.
std::optional<Failure> objectionTo(const MlineContent& mline, const StyleLayout& style,
                                   unsigned vertex) {
    if (vertex >= mline.vertices.size()) {
        return impossible(hostText("it has no vertex %1", {std::to_string(vertex)}));
    }
    if (auto contradiction = gapContradiction(mline)) {
        return contradiction;
    }
    const Result<ChainFrame> frame = chainFrameOf(mline, style);
    return frame ? std::nullopt : std::optional(frame.failure());
}

// Above or below the place, so that it is where the plan shows it; in a plane that stands upright
// the nearest one.
KdGePoint3d inPlaneOf(const MlineContent& mline, const KdGePoint3d& place) {
    constexpr double kUpright = 1e-6; // sine
    const double height = dot(place - mline.vertices.front().position, mline.normal);
    if (height == 0.0) {
        return place;
    }
    if (std::abs(mline.normal.z) < kUpright) {
        return place + mline.normal * -height;
    }
    return {place.x, place.y, place.z - height / mline.normal.z};
}

bool isWithin(double begin, double end, double length) {
    const double tolerance = reachTolerance(length);
    return begin > tolerance && end < length - tolerance && end > begin;
}

std::size_t heldGaps(std::span<const double> list, double length) {
    std::size_t count = 0;
    for (std::size_t i = 2; i + 1 < list.size(); i += 2) {
        count += isWithin(list[i], list[i + 1], length) ? 1 : 0;
    }
    return count;
}

VertexEdit editOf(const MlineContent& before, MlineContent after) {
    const std::size_t had = heldGaps(before);
    const std::size_t has = heldGaps(after);
    return {std::move(after), had > has ? had - has : 0};
}

Result<MlineContent> moved(const MlineContent& mline, const StyleLayout& style, unsigned vertex,
                           const KdGePoint3d& place) {
    if (place == mline.vertices[vertex].position) {
        return mline;
    }
    const MlineChain chain(mline);
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        const unsigned next = chain.next(s);
        if ((s == vertex || next == vertex) &&
            (mline.vertices[s == vertex ? next : s].position - place).isZeroLength()) {
            return impossible(hostText("vertex %1 would fall together with its neighbour",
                                       {std::to_string(vertex)}));
        }
    }
    MlineContent changed = mline;
    changed.vertices[vertex].position = place;
    return laidAnew(std::move(changed), mline, style, {}, GapMeasure::halfway);
}

// The foot of a place on the segment, its middle where the foot lies outside of it.
KdGePoint3d footOn(const MlineContent& mline, unsigned segment, const KdGePoint3d& place) {
    const MlineChain chain(mline);
    const KdGePoint3d start = mline.vertices[segment].position;
    const KdGeVector3d way = mline.vertices[chain.next(segment)].position - start;
    const double part = dot(place - start, way) / dot(way, way);
    const double least = reachTolerance(way.length()) / way.length();
    return start + way * (part > least && part < 1.0 - least ? part : 0.5);
}

// The same multiline with one vertex more on a segment.
MlineContent split(const MlineContent& mline, unsigned segment, const KdGePoint3d& foot) {
    const MlineChain chain(mline);
    const unsigned count = chain.vertexCount();
    ChainPart part(mline);
    for (unsigned v = 0; v < count; ++v) {
        part.addVertex(mline, v, std::min(v, chain.segmentCount() - 1));
        if (v == segment) {
            part.addPlace(mline, segment, foot);
        }
    }
    if (!chain.isClosed()) {
        return part.finished();
    }
    part.addVertex(mline, 0, 0); // where the closing segment leads to
    MlineContent result = part.finished();
    result.vertices.pop_back();
    result.lists.dropLastVertex();
    result.closed = true;
    return result;
}

// What two segments in line draw, as the list of one.
std::vector<double> joined(std::span<const double> first, double firstLength,
                           std::span<const double> second) {
    std::vector<double> list(first.begin(), first.end());
    if (list.empty()) {
        return {second.begin(), second.end()};
    }
    const double tolerance = reachTolerance(firstLength);
    const bool reachesJoint =
        list.size() % 2 == 0 || (list.size() > 1 && list.back() >= firstLength - tolerance);
    const bool goesOn = reachesJoint && second.size() > 1 && second[1] <= tolerance;
    if (goesOn && list.size() % 2 == 1) {
        list.pop_back();
    } else if (!goesOn && list.size() % 2 == 0) {
        list.push_back(firstLength);
    }
    for (std::size_t i = goesOn ? 2 : 1; i < second.size(); ++i) {
        list.push_back(firstLength + second[i]);
    }
    return list;
}

// Without a vertex whose segments lie in line.
MlineContent withoutCollinear(const MlineContent& mline, unsigned vertex) {
    const MlineChain chain(mline);
    const unsigned count = chain.vertexCount();
    const unsigned before = (vertex + count - 1) % count;
    VoVector<KdMLSegment> merged = mline.lists.nested(before);
    for (unsigned e = 0; e < merged.size(); ++e) {
        KdMLSegment& element = merged[static_cast<int>(e)];
        element.m_lineParams = toParameters(
            joined(chain.line(before, e), chain.track(before, e).length, chain.line(vertex, e)));
        element.m_areaParams = toParameters(joined(
            chain.area(before, e), chain.areaTrack(before, e).length, chain.area(vertex, e)));
    }
    MlineContent result = mline;
    result.vertices.clear();
    result.lists = ParameterLists();
    for (unsigned v = 0; v < count; ++v) {
        if (v != vertex) {
            result.vertices.push_back(mline.vertices[v]);
            result.lists.appendVertex();
            result.lists.setNested(result.lists.vertexCount() - 1,
                                   v == before ? merged : mline.lists.nested(v));
        }
    }
    return result;
}

// Without an open end and its segment.
Result<MlineContent> withoutEnd(const MlineContent& mline, const StyleLayout& style, bool isStart) {
    MlineContent shorter = mline;
    shorter.vertices.clear();
    shorter.lists = ParameterLists();
    const auto count = static_cast<unsigned>(mline.vertices.size());
    for (unsigned v = isStart ? 1 : 0; v < (isStart ? count : count - 1); ++v) {
        shorter.vertices.push_back(mline.vertices[v]);
        shorter.lists.appendVertex();
        VoVector<KdMLSegment> record = mline.lists.nested(v);
        if (v + 2 == count && !isStart) { // begins no segment any more
            for (unsigned e = 0; e < record.size(); ++e) {
                KdMLSegment& element = record[static_cast<int>(e)];
                for (VoVector<double>* const list :
                     {&element.m_lineParams, &element.m_areaParams}) {
                    *list = list->isEmpty() ? *list
                                            : toParameters(std::vector<double>{(*list)[0], 0.0});
                }
            }
        }
        shorter.lists.setNested(shorter.lists.vertexCount() - 1, record);
    }
    MlineContent changed = shorter;
    ChainVertex& end = isStart ? changed.vertices.front() : changed.vertices.back();
    end.axis = isStart ? end.axis : changed.vertices[count - 3].axis;
    end.miter =
        endMiter(end.axis, mline.normal, isStart ? style.startAngle : style.endAngle).direction;
    return laidAnew(std::move(changed), shorter, style);
}

} // namespace

std::size_t heldGaps(const MlineContent& mline) {
    const MlineChain chain(mline);
    std::size_t count = 0;
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        for (unsigned e = 0; e < chain.elementCount(); ++e) {
            count += heldGaps(chain.line(s, e), chain.track(s, e).length);
        }
    }
    return count;
}

Result<VertexEdit> withVertexMoved(const MlineContent& mline, const StyleLayout& style,
                                   unsigned vertex, const KdGePoint3d& place) {
    if (const auto objection = objectionTo(mline, style, vertex)) {
        return *objection;
    }
    Result<MlineContent> result = moved(mline, style, vertex, inPlaneOf(mline, place));
    if (!result) {
        return result.failure();
    }
    return editOf(mline, std::move(*result));
}

Result<VertexEdit> withVertexAdded(const MlineContent& mline, const StyleLayout& style,
                                   unsigned vertex, const KdGePoint3d& place) {
    if (const auto objection = objectionTo(mline, style, vertex)) {
        return *objection;
    }
    const unsigned segment = std::min(vertex, MlineChain(mline).segmentCount() - 1);
    const KdGePoint3d flat = inPlaneOf(mline, place);
    const MlineContent cut = split(mline, segment, footOn(mline, segment, flat));
    Result<MlineContent> result = moved(cut, style, segment + 1, flat);
    if (!result) {
        return result.failure();
    }
    // A vertex within a gap makes two of it, which is none lost.
    return editOf(cut, std::move(*result));
}

Result<VertexEdit> withVertexRemoved(const MlineContent& mline, const StyleLayout& style,
                                     unsigned vertex) {
    if (const auto objection = objectionTo(mline, style, vertex)) {
        return *objection;
    }
    const MlineChain chain(mline);
    const unsigned count = chain.vertexCount();
    if (count <= (chain.isClosed() ? kFewestClosed : kFewestOpen)) {
        return impossible(chain.isClosed() ? hostText("a closed chain has three vertices or more")
                                           : hostText("a chain has two vertices or more"));
    }
    if (!chain.isClosed() && (vertex == 0 || vertex + 1 == count)) {
        Result<MlineContent> shorter = withoutEnd(mline, style, vertex == 0);
        if (!shorter) {
            return shorter.failure();
        }
        return editOf(mline, std::move(*shorter));
    }
    const KdGePoint3d& before = mline.vertices[(vertex + count - 1) % count].position;
    const KdGePoint3d& after = mline.vertices[chain.next(vertex)].position;
    if ((after - before).isZeroLength()) {
        return impossible(hostText("its neighbours lie in the same place"));
    }
    MlineContent chord = mline; // only to find the foot
    chord.vertices = {mline.vertices[(vertex + count - 1) % count],
                      mline.vertices[chain.next(vertex)]};
    chord.closed = false;
    const KdGePoint3d foot = footOn(chord, 0, mline.vertices[vertex].position);
    const Result<MlineContent> straight = moved(mline, style, vertex, foot);
    if (!straight) {
        return straight.failure();
    }
    Result<MlineContent> result = layRight(withoutCollinear(*straight, vertex), style);
    if (!result) {
        return result.failure();
    }
    return editOf(mline, std::move(*result));
}

} // namespace orvex
