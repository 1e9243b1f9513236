#include "ChainFrame.h"

#include "hostText.h"
#include "impossible.h"
#include "mlineTrack.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace orvex {

namespace {

constexpr double kAlongTheSegment = 1e-9; // sine of the angle
constexpr double kFlatness = 1e-9;        // of the largest coordinate
constexpr double kRoundings = 4.0;        // steps of rounding that a direction goes through
constexpr double kMostNoise = 1e-3;       // radians; beyond it a miter is another one

double largestOf(const KdGePoint3d& p) {
    return std::max({std::abs(p.x), std::abs(p.y), std::abs(p.z)});
}

bool isFinite(const KdGeVector3d& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

bool areFinite(std::span<const double> values) {
    return std::all_of(values.begin(), values.end(),
                       [](double value) { return std::isfinite(value); });
}

// Nothing when the chain can be judged.
std::optional<std::string> objectionTo(const MlineContent& mline, const ChainFrame& frame) {
    const KdGeVector3d normal = mline.normal;
    if (std::abs(normal.length() - 1.0) > kFlatness) {
        return hostText("its normal has not the length 1");
    }
    for (std::size_t v = 0; v < frame.vertices.size(); ++v) {
        if (frame.vertices[v].axis.length() == 0.0 || frame.vertices[v].axis.isZeroLength()) {
            return hostText("segment %1 has no length", {std::to_string(v)});
        }
        const double height = dot(mline.vertices[v].position - mline.vertices[0].position, normal);
        if (std::abs(height) > kFlatness * std::max(frame.largest, 1.0)) {
            return hostText("vertex %1 doesn't lie in the plane of the others",
                            {std::to_string(v)});
        }
    }
    return std::nullopt;
}

Miter storedOrStyleMiter(const KdGeVector3d& stored, const VertexFrame& frame,
                         const KdGeVector3d& normal, double angle) {
    const Miter ofStyle = endMiter(frame.axis, normal, angle);
    if (stored == ofStyle.direction) {
        return ofStyle;
    }
    const double length = stored.length();
    const double sine = dot(frame.left, stored);
    if (length == 0.0 || std::abs(sine) < kAlongTheSegment * length) {
        return ofStyle;
    }
    return {stored, sine};
}

// Whether elements lie rather on the other side of a vertex than the one that is called left.
bool areMirrored(const MlineContent& mline, unsigned v, const KdGeVector3d& left,
                 std::span<const double> distances) {
    const double sine = dot(left, mline.vertices[v].miter);
    double fromLeft = 0.0;
    double fromRight = 0.0;
    for (unsigned e = 0; e < std::min<std::size_t>(mline.lists.elementCount(v), distances.size());
         ++e) {
        const auto line = mline.lists.line(v, e);
        const double stored = line.empty() ? 0.0 : line.front() * sine;
        fromLeft += std::abs(stored - distances[e]);
        fromRight += std::abs(stored + distances[e]);
    }
    return fromRight < fromLeft;
}

} // namespace

bool isFinite(const MlineContent& mline) {
    const MlineChain chain(mline);
    for (unsigned v = 0; v < chain.vertexCount(); ++v) {
        const ChainVertex& vertex = chain.vertex(v);
        if (!isFinite(vertex.position - KdGePoint3d()) || !isFinite(vertex.axis) ||
            !isFinite(vertex.miter)) {
            return false;
        }
        for (unsigned e = 0; e < mline.lists.elementCount(v); ++e) {
            if (!areFinite(chain.line(v, e)) || !areFinite(chain.area(v, e))) {
                return false;
            }
        }
    }
    return isFinite(mline.normal) && std::isfinite(mline.scale);
}

Result<ChainFrame> chainFrameOf(const MlineContent& mline, const StyleLayout& style) {
    const MlineChain chain(mline);
    const unsigned count = chain.vertexCount();
    if (count < 2) {
        return impossible(hostText("it has fewer than two vertices"));
    }
    ChainFrame frame;
    frame.distances = elementDistances(style, mline.scale, mline.justification);
    if (!isFinite(mline) || !areFinite(frame.distances)) {
        return impossible(hostText("a number in it isn't finite"));
    }
    std::vector<KdGePoint3d> points;
    points.reserve(count);
    for (const ChainVertex& vertex : mline.vertices) {
        points.push_back(vertex.position);
        frame.largest = std::max(frame.largest, largestOf(vertex.position));
    }
    for (const double distance : frame.distances) {
        frame.largest = std::max(frame.largest, std::abs(distance));
    }
    const std::vector<KdGeVector3d> axes = chainAxes(points, chain.isClosed());
    frame.vertices.resize(count);
    const double rounding = kRoundings * std::numeric_limits<double>::epsilon() * frame.largest;
    for (unsigned v = 0; v < count; ++v) {
        VertexFrame& at = frame.vertices[v];
        const unsigned before = (v + count - 1) % count;
        const bool isStart = v == 0 && !chain.isClosed();
        const bool isEnd = v + 1 == count && !chain.isClosed();
        const unsigned incoming = isStart ? v : before;
        const unsigned outgoing = isEnd ? before : v;
        at.axis = axes[v];
        at.left = leftOf(at.axis, mline.normal);
        at.axisNoise = rounding / (points[chain.next(incoming)] - points[incoming]).length() +
                       rounding / (points[chain.next(outgoing)] - points[outgoing]).length();
        at.miter = isStart || isEnd
                       ? storedOrStyleMiter(mline.vertices[v].miter, at, mline.normal,
                                            isStart ? style.startAngle : style.endAngle)
                       : jointMiter(axes[before], axes[v], mline.normal);
        at.miterNoise = std::min(at.axisNoise / std::abs(at.miter.sine), kMostNoise);
        at.turnsBack = !isStart && !isEnd && turnsStraightBack(axes[before], axes[v], mline.normal);
        if (at.turnsBack && areMirrored(mline, v, at.left, frame.distances)) {
            at.left = leftOf(axes[before], mline.normal);
            at.miter.direction = at.left;
        }
    }
    if (const auto objection = objectionTo(mline, frame)) {
        return impossible(*objection);
    }
    return frame;
}

double miterDeviation(const KdGeVector3d& stored, const VertexFrame& frame) {
    const double length = stored.length();
    const double rightLength = frame.miter.direction.length();
    if (length == 0.0 || rightLength == 0.0) {
        return 1.0;
    }
    return cross(stored, frame.miter.direction).length() / (length * rightLength);
}

double sineOf(const KdGeVector3d& stored, const VertexFrame& frame) {
    // What only rounding keeps from the right miter has its sine: its own keeps too few digits.
    if (miterDeviation(stored, frame) > frame.miterNoise) {
        return dot(frame.left, stored);
    }
    const KdGeVector3d& right = frame.miter.direction;
    return std::copysign(stored.length() / right.length(), dot(stored, right)) * frame.miter.sine;
}

bool endsInJoint(const MlineContent& mline, unsigned segment) {
    const MlineChain chain(mline);
    return !chain.isClosed() && segment + 1 == chain.segmentCount() && mline.endCapsSuppressed;
}

} // namespace orvex
