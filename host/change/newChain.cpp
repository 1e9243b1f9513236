#include "newChain.h"

#include "chainMiter.h"

namespace orvex {

namespace {

std::vector<KdGePoint3d> withoutRepeats(const std::vector<KdGePoint3d>& points, bool closed) {
    std::vector<KdGePoint3d> kept;
    for (const KdGePoint3d& point : points) {
        if (kept.empty() || !(point - kept.back()).isZeroLength()) {
            kept.push_back(point);
        }
    }
    while (closed && kept.size() > 1 && (kept.back() - kept.front()).isZeroLength()) {
        kept.pop_back();
    }
    return kept;
}

} // namespace

NewChain makeNewChain(const std::vector<KdGePoint3d>& points, bool closed,
                      const KdGeVector3d& normal, const MlineSettings& settings) {
    const std::vector<KdGePoint3d> corners = withoutRepeats(points, closed);
    const std::size_t count = corners.size();
    closed = closed && count > 2;
    NewChain chain;
    if (count < 2) {
        return chain;
    }
    const std::vector<KdGeVector3d> axes = chainAxes(corners, closed);
    const std::vector<double> distances =
        elementDistances(settings, settings.scale, settings.justification);
    for (std::size_t i = 0; i < count; ++i) {
        const bool isStart = i == 0 && !closed;
        const bool isEnd = i + 1 == count && !closed;
        const Miter miter =
            isStart || isEnd
                ? endMiter(axes[i], normal, isStart ? settings.startAngle : settings.endAngle)
                : jointMiter(axes[(i + count - 1) % count], axes[i], normal);
        chain.vertices.push_back({corners[i], axes[i], miter.direction});
        std::vector<double>& atVertex = chain.elementPositions.emplace_back();
        for (const double distance : distances) {
            atVertex.push_back(distance / miter.sine);
        }
    }
    return chain;
}

} // namespace orvex
