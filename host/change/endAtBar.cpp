#include "endAtBar.h"

#include "ChainFrame.h"
#include "breakLists.h"
#include "geometry.h"
#include "hostText.h"
#include "impossible.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvex {

namespace {

constexpr double kSamePlane = 1e-9;

// The way from an end segment's other vertex through the end.
struct EndRay {
    KdGePoint3d from;
    KdGeVector3d way;  // unit
    KdGeVector3d left; // unit
    double length = 0.0;
    double tolerance = 0.0;

    [[nodiscard]] std::optional<double> crossing(const KdGePoint3d& a, const KdGePoint3d& b) const {
        const double sideA = dot(a - from, left);
        const double sideB = dot(b - from, left);
        const double least = std::min(sideA, sideB);
        const double most = std::max(sideA, sideB);
        if (least > tolerance || most < -tolerance || most - least <= tolerance) {
            return std::nullopt;
        }
        const double alongA = dot(a - from, way);
        return alongA + (dot(b - from, way) - alongA) * (-sideA / (sideB - sideA));
    }
};

EndRay rayOf(const MlineContent& mline, MlineEnd end) {
    const std::size_t count = mline.vertices.size();
    const bool isStart = end == MlineEnd::start;
    const KdGePoint3d& tip = mline.vertices[isStart ? 0 : count - 1].position;
    EndRay ray;
    ray.from = mline.vertices[isStart ? 1 : count - 2].position;
    ray.way = tip - ray.from;
    ray.length = ray.way.length();
    ray.way.normalize();
    ray.left = leftOf(ray.way, mline.normal);
    ray.tolerance = reachTolerance(ray.length);
    return ray;
}

// Of one segment of the bar, where it is met first.
std::optional<double> met(const EndRay& ray, const MlineChain& bar, unsigned segment,
                          BarLine line) {
    if (line == BarLine::axis) {
        return ray.crossing(bar.vertex(segment).position, bar.vertex(bar.next(segment)).position);
    }
    std::optional<double> first;
    for (unsigned e = 0; e < bar.elementCount(); ++e) {
        const MlineTrack track = bar.track(segment, e);
        const auto crossing = ray.crossing(track.start, track.end);
        if (crossing && (!first || *crossing < *first)) {
            first = crossing;
        }
    }
    return first;
}

} // namespace

Result<MlineContent> endAtBar(const MlineContent& mline, MlineEnd end, const MlineContent& bar,
                              BarLine line, EndChange change) {
    for (const MlineContent* const each : {&mline, &bar}) {
        if (const auto frame = chainFrameOf(*each, {}); !frame) {
            return frame.failure();
        }
    }
    if (const auto contradiction = gapContradiction(mline)) {
        return *contradiction;
    }
    if (mline.closed) {
        return impossible(hostText("it is closed and has no ends"));
    }
    const KdGeVector3d lift = bar.vertices[0].position - mline.vertices[0].position;
    const double largest = std::max(1.0, lift.length());
    if (cross(mline.normal, bar.normal).length() > kSamePlane ||
        std::abs(dot(lift, mline.normal)) > kSamePlane * largest) {
        return impossible(hostText("it doesn't lie in the plane of the bar"));
    }
    const EndRay ray = rayOf(mline, end);
    const MlineChain chain(bar);
    std::optional<double> best;
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        const auto at = met(ray, chain, s, line);
        if (!at) {
            continue;
        }
        const bool extends = change == EndChange::extend;
        const bool isUsable = extends ? *at > ray.length + ray.tolerance
                                      : *at > ray.tolerance && *at < ray.length - ray.tolerance;
        if (isUsable && (!best || (extends ? *at < *best : *at > *best))) {
            best = at;
        }
    }
    if (!best) {
        return impossible(change == EndChange::extend
                              ? hostText("its end doesn't lead to the bar")
                              : hostText("its last segment doesn't cross the bar"));
    }
    return moveEnd(mline, end, ray.from + ray.way * *best);
}

} // namespace orvex
