#include "mlineTrack.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvex {

double reachTolerance(double trackLength) {
    // Break distances come out of trigonometry.
    constexpr double kReachTolerance = 1e-9; // of 1 drawing unit or of the track's length
    return kReachTolerance * std::max(1.0, trackLength);
}

unsigned MlineChain::segmentCount() const {
    const unsigned count = vertexCount();
    return isClosed() || count == 0 ? count : count - 1;
}

std::span<const double> MlineChain::line(unsigned vertex, unsigned element) const {
    const bool there = element < m_mline.lists.elementCount(vertex);
    return there ? m_mline.lists.line(vertex, element) : std::span<const double>{};
}

std::span<const double> MlineChain::area(unsigned vertex, unsigned element) const {
    const bool there = element < m_mline.lists.elementCount(vertex);
    return there ? m_mline.lists.area(vertex, element) : std::span<const double>{};
}

KdGePoint3d MlineChain::position(unsigned vertex, unsigned element) const {
    const auto list = line(vertex, element);
    const ChainVertex& at = m_mline.vertices[vertex];
    return list.empty() ? at.position : at.position + at.miter * list.front();
}

MlineTrack MlineChain::track(unsigned segment, unsigned element) const {
    return trackBetween(segment, position(segment, element), position(next(segment), element));
}

MlineTrack MlineChain::areaTrack(unsigned segment, unsigned element) const {
    const auto edge = [this, element](unsigned vertex) {
        const auto list = area(vertex, element);
        const ChainVertex& at = m_mline.vertices[vertex];
        return list.empty() ? position(vertex, element) : at.position + at.miter * list.front();
    };
    return trackBetween(segment, edge(segment), edge(next(segment)));
}

MlineTrack MlineChain::trackBetween(unsigned segment, const KdGePoint3d& start,
                                    const KdGePoint3d& end) const {
    const KdGeVector3d way = end - start;
    const double length = way.length();
    // Where both positions fall together the stored axis tells the way.
    const KdGeVector3d direction = length > 0.0 && std::isfinite(length)
                                       ? way * (1.0 / length)
                                       : m_mline.vertices[segment].axis;
    return {start, end, direction, length};
}

bool MlineChain::reachesStart(unsigned segment, unsigned element) const {
    const double length = track(segment, element).length;
    const double tolerance = reachTolerance(length);
    bool reaches = false;
    forEachStretch(line(segment, element), length, [&](const MlineStretch& stretch) {
        reaches = reaches || (stretch.begin <= tolerance && stretch.end >= -tolerance);
    });
    return reaches;
}

bool MlineChain::reachesEnd(unsigned segment, unsigned element) const {
    const double length = track(segment, element).length;
    const double tolerance = reachTolerance(length);
    bool reaches = false;
    forEachStretch(line(segment, element), length, [&](const MlineStretch& stretch) {
        reaches = reaches || stretch.toTrackEnd ||
                  (stretch.begin <= length + tolerance && stretch.end >= length - tolerance);
    });
    return reaches;
}

std::vector<unsigned> MlineChain::elementsAcross() const {
    std::vector<unsigned> order(elementCount());
    std::iota(order.begin(), order.end(), 0U);
    std::vector<double> offsets(order.size(), 0.0);
    for (const unsigned element : order) {
        const auto list = line(0, element);
        const bool usable = !list.empty() && !std::isnan(list.front());
        offsets[element] = usable ? list.front() : 0.0;
    }
    std::stable_sort(order.begin(), order.end(),
                     [&](unsigned a, unsigned b) { return offsets[a] > offsets[b]; });
    return order;
}

} // namespace orvex
