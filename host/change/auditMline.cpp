#include "auditMline.h"

#include "ChainFrame.h"
#include "breakLists.h"
#include "geometry.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr double kPlaceTolerance = 1e-9; // of the largest coordinate
constexpr double kAngleTolerance = 1e-9; // radians, and what coordinates are rounded by
constexpr double kLargestTurn = 1e-3;    // radians; more is no tolerance, however narrow it is

// From the axis counter-clockwise to the miter, whose sense doesn't matter: 0 up to 180.
double angleOf(const KdGeVector3d& miter, const VertexFrame& frame) {
    const double angle = std::atan2(dot(frame.left, miter), dot(frame.axis, miter));
    const double turned = angle < 0.0 ? angle + kPi : angle;
    return toDegrees(turned >= kPi ? 0.0 : turned);
}

class Auditor {
public:
    Auditor(const MlineContent& mline, const ChainFrame& frame)
        : m_mline(mline), m_chain(mline), m_frame(frame), m_place(kPlaceTolerance * frame.largest) {
        for (const double distance : frame.distances) {
            m_widest = std::max(m_widest, std::abs(distance));
        }
    }

    std::vector<Finding> run() {
        for (unsigned v = 0; v < m_chain.vertexCount(); ++v) {
            judgeDirections(v);
            for (unsigned e = 0; e < m_mline.lists.elementCount(v); ++e) {
                judgePosition(v, e);
                if (v < m_chain.segmentCount()) {
                    judgeList(v, e);
                }
            }
        }
        return std::move(m_findings);
    }

private:
    // What an element moves by when directions turn by a small angle doesn't matter below the
    // tolerance of places.
    [[nodiscard]] bool isWithin(double deviation, double noise) const {
        return deviation <= kAngleTolerance + noise ||
               (deviation <= kLargestTurn && m_widest > 0.0 && deviation * m_widest <= m_place);
    }

    void judgeDirections(unsigned v) {
        const ChainVertex& vertex = m_chain.vertex(v);
        const VertexFrame& frame = m_frame.vertices[v];
        const double turned = (vertex.axis - frame.axis).length();
        if (!isWithin(turned, frame.axisNoise)) {
            const double angle = std::acos(std::clamp(dot(vertex.axis, frame.axis), -1.0, 1.0));
            m_findings.push_back({FindingCode::axis, v, {}, toDegrees(angle), 0.0});
        }
        if (!isWithin(miterDeviation(vertex.miter, frame), frame.miterNoise)) {
            m_findings.push_back({FindingCode::miter,
                                  v,
                                  {},
                                  angleOf(vertex.miter, frame),
                                  angleOf(frame.miter.direction, frame)});
        }
    }

    void judgePosition(unsigned v, unsigned e) {
        if (e >= m_frame.distances.size()) {
            return;
        }
        const auto line = m_chain.line(v, e);
        const double position = line.empty() ? 0.0 : line.front();
        const VertexFrame& frame = m_frame.vertices[v];
        const double distance = position * sineOf(m_chain.vertex(v).miter, frame);
        const double should = m_frame.distances[e];
        const double tolerance = m_place + std::abs(should) * frame.miterNoise;
        if (line.empty() || std::abs(distance - should) > tolerance) {
            m_findings.push_back({FindingCode::position, v, e, distance, should});
        }
    }

    void judgeList(unsigned segment, unsigned e) {
        const auto list = m_chain.line(segment, e);
        for (std::size_t i = 2; i < list.size(); ++i) {
            if (list[i] < list[i - 1]) {
                m_findings.push_back({FindingCode::order, segment, e, list[i], list[i - 1]});
                break;
            }
        }
        if (list.size() < 2 || endsInJoint(m_mline, segment)) {
            return;
        }
        const double farthest = *std::max_element(list.begin() + 1, list.end());
        const double length = m_chain.track(segment, e).length;
        if (farthest > length + kReachBeyond) {
            m_findings.push_back({FindingCode::reach, segment, e, farthest, length});
        }
    }

    const MlineContent& m_mline;
    const MlineChain m_chain;
    const ChainFrame& m_frame;
    double m_place;
    double m_widest = 0.0;
    std::vector<Finding> m_findings;
};

} // namespace

std::vector<Finding> auditMline(const MlineContent& mline, const StyleLayout* style) {
    if (style == nullptr) {
        return {{FindingCode::style, 0, {}, {}, {}}};
    }
    const Result<ChainFrame> frame = chainFrameOf(mline, *style);
    if (!frame) {
        return {{FindingCode::chain, 0, {}, {}, {}}};
    }
    std::vector<Finding> findings;
    const auto has = static_cast<double>(mline.elementCount());
    const auto should = static_cast<double>(style->offsets.size());
    if (has != should) {
        findings.push_back({FindingCode::elements, 0, {}, has, should});
    }
    const std::vector<Finding> more = Auditor(mline, *frame).run();
    findings.insert(findings.end(), more.begin(), more.end());
    return findings;
}

} // namespace orvex
