#include "arcs.h"

#include "geometry.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr double kTurn = 2.0 * kPi;
constexpr int kPiecesPerTurn = 144;

// Bulges outside of this range are straight: below, the arc leaves its chord by less than rounding
// does; above, it is a circle through both ends that is larger than any drawing.
constexpr double kSmallestBulge = 1e-9;
constexpr double kGreatestBulge = 1e9;

// The arc from `from` to `to`, without its first point. Centre: from the middle of the chord c by
// n x c (1 - b^2) / (4 b), since the arc's height is b |c| / 2.
void appendBulge(std::vector<KdGePoint3d>& chain, const KdGePoint3d& from, const KdGePoint3d& to,
                 double bulge, const KdGeVector3d& normal) {
    const double size = std::abs(bulge);
    if (!(size > kSmallestBulge && size < kGreatestBulge)) {
        chain.push_back(to);
        return;
    }
    const KdGeVector3d chord = to - from;
    const double aside = (1.0 - bulge * bulge) / (4.0 * bulge);
    const KdGePoint3d center = from + chord * 0.5 + cross(normal, chord) * aside;
    const KdGeVector3d radius = from - center;
    chain.pop_back();
    appendArc(chain, center, radius, cross(normal, radius), 0.0, 4.0 * std::atan(bulge));
    chain.back() = to;
}

} // namespace

void appendArc(std::vector<KdGePoint3d>& chain, const KdGePoint3d& center,
               const KdGeVector3d& major, const KdGeVector3d& minor, double begin, double sweep) {
    if (!std::isfinite(begin) || !std::isfinite(sweep)) {
        return;
    }
    const double turned = std::clamp(sweep, -kTurn, kTurn);
    // A hair less, so that rounding doesn't add a piece.
    const double wanted = std::ceil(std::abs(turned) / kTurn * kPiecesPerTurn - 1e-6);
    const int pieces = std::max(static_cast<int>(wanted), 1);
    for (int i = 0; i <= pieces; ++i) {
        const double angle = begin + turned * i / pieces;
        chain.push_back(center + major * std::cos(angle) + minor * std::sin(angle));
    }
}

std::vector<KdGePoint3d> conicChain(const ConicShape& conic) {
    // Parameters far outside a turn come from broken files; the remainder keeps them harmless.
    double sweep = std::fmod(conic.end - conic.start, kTurn);
    if (sweep <= 0.0) {
        sweep += kTurn;
    }
    std::vector<KdGePoint3d> chain;
    appendArc(chain, conic.center, conic.major, conic.minor, conic.start, sweep);
    return chain;
}

std::vector<KdGePoint3d> polylineChain(const PolylineShape& polyline, std::vector<ArcSpan>* arcs) {
    const auto& vertices = polyline.vertices;
    std::vector<KdGePoint3d> chain;
    if (vertices.empty()) {
        return chain;
    }
    KdGeVector3d normal = polyline.normal;
    normal.normalize();
    chain.reserve(vertices.size() + 1);
    chain.push_back(vertices.front().position);
    const std::size_t pieces = polyline.closed ? vertices.size() : vertices.size() - 1;
    for (std::size_t i = 0; i < pieces; ++i) {
        const auto& next = vertices[(i + 1) % vertices.size()];
        const std::size_t first = chain.size() - 1;
        appendBulge(chain, vertices[i].position, next.position, vertices[i].bulge, normal);
        chain[first] = vertices[i].position;
        if (arcs != nullptr && chain.size() - first > 2) {
            arcs->push_back(
                {static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(chain.size() - 1)});
        }
    }
    return chain;
}

} // namespace orvex
