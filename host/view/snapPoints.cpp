#include "snapPoints.h"

#include "roundNumber.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr std::size_t kMostCrossed = 64; // pieces, each with each

// But for what rounding leaves.
bool isSamePlace(PlanPoint a, PlanPoint b) {
    const double size = std::max({std::abs(a.x), std::abs(a.y), std::abs(b.x), std::abs(b.y)});
    return differsByNoise(a.x, b.x, size) && differsByNoise(a.y, b.y, size);
}

class Collector {
public:
    Collector(SnapModes modes, const std::optional<PlanPoint>& base)
        : m_modes(modes), m_base(base) {}

    void takeEnds(const SnapPiece& piece) {
        const SnapMode mode = piece.source == SnapSource::axis      ? SnapMode::vertex
                              : piece.source == SnapSource::element ? SnapMode::elementEnd
                                                                    : SnapMode::end;
        if (piece.isFromEnd) {
            add(mode, piece.line.from, piece.handle);
        }
        if (piece.isToEnd) {
            add(mode, piece.line.to, piece.handle);
        }
        if (piece.middle) {
            add(SnapMode::middle, *piece.middle, piece.handle);
        }
    }
    void takeFeet(const SnapPiece& piece) {
        if (m_base && m_modes.has(SnapMode::perpendicular)) {
            for (const PlanPoint& foot : feetOn(piece.line, *m_base)) {
                add(SnapMode::perpendicular, foot, piece.handle);
            }
        }
    }
    void takeCrossing(const SnapPiece& a, const SnapPiece& b) {
        const bool isOfAxis = a.source == SnapSource::axis || b.source == SnapSource::axis;
        const SnapMode mode = isOfAxis ? SnapMode::axisCrossing : SnapMode::intersection;
        if (m_modes.has(mode) && mayCross(a, b, isOfAxis)) {
            if (const auto point = crossingOf(a.line, b.line)) {
                add(mode, *point, a.handle, b.handle);
            }
        }
    }

    std::vector<SnapPoint> points;

private:
    // The lines of one multiline meet at its own corners, and neighbours on a stroke at its points.
    static bool mayCross(const SnapPiece& a, const SnapPiece& b, bool isOfAxis) {
        if (a.handle != b.handle) {
            const bool isOfLine = a.source == SnapSource::line || b.source == SnapSource::line;
            return !(isOfAxis && isOfLine);
        }
        return a.source == SnapSource::line && b.source == SnapSource::line &&
               (a.stroke != b.stroke || b.number - a.number > 1);
    }
    // A second point in the place of the first is none.
    void add(SnapMode mode, PlanPoint at, std::uint64_t handle, std::uint64_t other = 0) {
        if (m_modes.has(mode) && !(m_base && isSamePlace(at, *m_base))) {
            points.push_back({mode, at, {handle, other}});
        }
    }

    SnapModes m_modes;
    const std::optional<PlanPoint>& m_base;
};

} // namespace

std::vector<SnapPoint> snapPointsOn(const std::vector<SnapPiece>& pieces, SnapModes modes,
                                    const std::optional<PlanPoint>& base) {
    Collector collector(modes, base);
    for (const SnapPiece& piece : pieces) {
        collector.takeEnds(piece);
        collector.takeFeet(piece);
    }
    if (pieces.size() <= kMostCrossed) {
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            for (std::size_t j = i + 1; j < pieces.size(); ++j) {
                collector.takeCrossing(pieces[i], pieces[j]);
            }
        }
    }
    return std::move(collector.points);
}

} // namespace orvex
