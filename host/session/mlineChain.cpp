#include "mlineChain.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

// A miter with the sine of its angle to the axis.
struct Miter {
    KdGeVector3d direction;
    double sine = 1.0;
};

KdGeVector3d leftOf(const KdGeVector3d& axis, const KdGeVector3d& normal) {
    return {normal.y * axis.z - normal.z * axis.y, normal.z * axis.x - normal.x * axis.z,
            normal.x * axis.y - normal.y * axis.x};
}

Miter endMiter(const KdGeVector3d& axis, const KdGeVector3d& normal, double angle) {
    constexpr double kNothing = 1e-9;
    const KdGeVector3d left = leftOf(axis, normal);
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    // A right angle has no exact value in radians, and along the axis there is no end at all.
    if (std::abs(cosine) < kNothing || std::abs(sine) < kNothing) {
        return {left, 1.0};
    }
    return {axis * cosine + left * sine, sine};
}

// The sum of both left sides is the long diagonal of a rhombus: it halves the angle, and half its
// length is the sine of the angle between miter and axis.
Miter jointMiter(const KdGeVector3d& incoming, const KdGeVector3d& outgoing,
                 const KdGeVector3d& normal) {
    KdGeVector3d sum = leftOf(incoming, normal) + leftOf(outgoing, normal);
    const double length = sum.length();
    if (sum.isZeroLength()) { // straight back
        return {leftOf(outgoing, normal), 1.0};
    }
    return {{sum.x / length, sum.y / length, sum.z / length}, length / 2.0};
}

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

std::vector<double> justifiedPositions(const MlineSettings& settings) {
    std::vector<double> positions = settings.offsets;
    if (positions.empty()) {
        return positions;
    }
    const auto [least, most] = std::minmax_element(positions.begin(), positions.end());
    const double onChain = settings.justification == 0   ? *most
                           : settings.justification == 2 ? *least
                                                         : 0.0;
    for (double& position : positions) {
        position = (position - onChain) * settings.scale;
    }
    return positions;
}

} // namespace

MlineChain makeMlineChain(const std::vector<KdGePoint3d>& points, bool closed,
                          const KdGeVector3d& normal, const MlineSettings& settings) {
    const std::vector<KdGePoint3d> corners = withoutRepeats(points, closed);
    const std::size_t count = corners.size();
    closed = closed && count > 2;
    MlineChain chain;
    if (count < 2) {
        return chain;
    }
    std::vector<KdGeVector3d> axes(count);
    for (std::size_t i = 0; i < count; ++i) {
        axes[i] = (corners[(i + 1) % count] - corners[i]).normalize();
    }
    if (!closed) {
        axes.back() = axes[count - 2];
    }
    const std::vector<double> positions = justifiedPositions(settings);
    for (std::size_t i = 0; i < count; ++i) {
        const bool isStart = i == 0 && !closed;
        const bool isEnd = i + 1 == count && !closed;
        const Miter miter =
            isStart || isEnd
                ? endMiter(axes[i], normal, isStart ? settings.startAngle : settings.endAngle)
                : jointMiter(axes[(i + count - 1) % count], axes[i], normal);
        chain.vertices.push_back({corners[i], axes[i], miter.direction});
        std::vector<double>& atVertex = chain.elementPositions.emplace_back();
        for (const double position : positions) {
            atVertex.push_back(position / miter.sine);
        }
    }
    return chain;
}

} // namespace orvex
