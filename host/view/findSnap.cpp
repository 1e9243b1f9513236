#include "findSnap.h"

#include "roundNumber.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr double kHold = 1.5;     // apertures to which a held target is kept
constexpr double kNearer = 2.0;   // pixels by which another one has to be nearer
constexpr double kTogether = 1.0; // pixels within which the order of the modes decides

PlanBox squareAround(PlanPoint center, double reach) {
    return {{center.x - reach, center.y - reach}, {center.x + reach, center.y + reach}};
}

bool isFinite(PlanPoint point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

// What was computed comes without the noise of it; vertices and ends are the drawing's own.
SnapTarget cleaned(SnapTarget target) {
    if (target.mode != SnapMode::vertex && target.mode != SnapMode::end) {
        const double size = std::max(std::abs(target.at.x), std::abs(target.at.y));
        target.at = {withoutNoise(target.at.x, size), withoutNoise(target.at.y, size)};
    }
    return target;
}

class Search {
public:
    Search(Scene& scene, const SnapQuery& query)
        : m_query(query), m_wantsLeads(query.modes == SnapModes{SnapMode::vertex}),
          m_scan(scanForSnap(
              scene, squareAround(query.cursor, kHold * query.aperture * query.unitsPerPixel),
              query.cursor, query.exclusion, m_wantsLeads)) {}

    [[nodiscard]] std::optional<SnapTarget> point() const {
        std::vector<SnapTarget> near;
        std::optional<SnapTarget> held;
        for (const SnapPoint& each : snapPointsOn(m_scan.pieces, m_query.modes, m_query.base)) {
            const double pixels = pixelsTo(each.at);
            const SnapTarget target{each.mode, each.at, each.handles, {}, pixels, {}};
            if (pixels <= m_query.aperture) {
                near.push_back(target);
            }
            if (pixels <= kHold * m_query.aperture && isHeld(each)) {
                held = target;
            }
        }
        const std::optional<SnapTarget> best = bestOf(near);
        const bool isReleased = best && held && best->pixels <= held->pixels - kNearer;
        return held && !isReleased ? held : best;
    }

    [[nodiscard]] std::optional<SnapTarget> line() const {
        std::optional<SnapTarget> best;
        const auto offer = [&](const SnapTarget& target) {
            if (target.pixels <= m_query.aperture && (!best || target.pixels < best->pixels)) {
                best = target;
            }
        };
        if (m_query.modes.has(SnapMode::nearest)) {
            for (const SnapPiece& piece : m_scan.pieces) {
                const PlanPoint at = nearestOn(piece.line, m_query.cursor);
                offer({SnapMode::nearest, at, {piece.handle, 0}, {}, pixelsTo(at), piece.line});
            }
        }
        for (const SnapLead& lead : m_scan.leads) {
            const PlanPoint on = nearestOn(lead.stretch, m_query.cursor);
            const SnapLine& segment = lead.segment;
            const PlanPoint vertex =
                pixelsTo(segment.to) < pixelsTo(segment.from) ? segment.to : segment.from;
            offer({SnapMode::vertex, vertex, {lead.handle, 0}, on, pixelsTo(on), {}});
        }
        return best;
    }

private:
    [[nodiscard]] double pixelsTo(PlanPoint point) const {
        return distance(point, m_query.cursor) / m_query.unitsPerPixel;
    }
    [[nodiscard]] bool isHeld(const SnapPoint& point) const {
        return m_query.held && m_query.held->mode == point.mode &&
               m_query.held->at == cleaned(SnapTarget{point.mode, point.at}).at;
    }
    // Of targets in the same place as the nearest the one whose mode comes first.
    [[nodiscard]] std::optional<SnapTarget> bestOf(const std::vector<SnapTarget>& near) const {
        const auto nearest =
            std::min_element(near.begin(), near.end(),
                             [](const auto& a, const auto& b) { return a.pixels < b.pixels; });
        if (nearest == near.end()) {
            return std::nullopt;
        }
        SnapTarget best = *nearest;
        for (const SnapTarget& each : near) {
            const double apart = distance(each.at, nearest->at) / m_query.unitsPerPixel;
            if (apart <= kTogether && each.mode < best.mode) {
                best = each;
            }
        }
        return best;
    }

    const SnapQuery& m_query;
    bool m_wantsLeads;
    SnapScan m_scan;
};

} // namespace

std::optional<SnapTarget> findSnap(Scene& scene, const SnapQuery& query) {
    if (query.modes.isEmpty() || !isFinite(query.cursor) || !(query.unitsPerPixel > 0.0)) {
        return std::nullopt;
    }
    const Search search(scene, query);
    std::optional<SnapTarget> target = search.point();
    if (!target) {
        target = search.line();
    }
    return target ? std::optional(cleaned(*target)) : std::nullopt;
}

std::optional<SnapTarget> nextSnap(Scene& scene, PlanPoint from, PlanPoint direction,
                                   const PlanBox& area, SnapModes modes, double unitsPerPixel) {
    // Ever farther, so that what lies next is found in a drawing of any size.
    const double farthest = std::max(area.high.x - area.low.x, area.high.y - area.low.y);
    for (double reach = 32.0 * unitsPerPixel;; reach *= 2.0) {
        const PlanPoint tip{from.x + direction.x * reach, from.y + direction.y * reach};
        PlanBox ahead;
        ahead.include(PlanPoint{from.x - direction.y * reach, from.y - direction.x * reach});
        ahead.include(PlanPoint{tip.x + direction.y * reach, tip.y + direction.x * reach});
        const SnapScan scan = scanForSnap(scene, ahead, from, {}, false);
        std::optional<SnapTarget> best;
        for (const SnapPoint& each : snapPointsOn(scan.pieces, modes, std::nullopt)) {
            const PlanPoint way{each.at.x - from.x, each.at.y - from.y};
            const double along = way.x * direction.x + way.y * direction.y;
            const double aside = std::abs(way.x * direction.y - way.y * direction.x);
            const double pixels = std::hypot(along, aside) / unitsPerPixel;
            const bool isAhead = along > unitsPerPixel && along <= reach && aside <= along;
            const bool isSeen = each.at.x >= area.low.x && each.at.x <= area.high.x &&
                                each.at.y >= area.low.y && each.at.y <= area.high.y;
            if (isAhead && isSeen && (!best || pixels < best->pixels)) {
                best = cleaned({each.mode, each.at, each.handles, {}, pixels, {}});
            }
        }
        if (best || !(reach < farthest)) {
            return best;
        }
    }
}

} // namespace orvex
