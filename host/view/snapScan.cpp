#include "snapScan.h"

#include "KdDbStub.h"
#include "Scene.h"
#include "boxSelection.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace orvex {

namespace {

// What is looked at in one search at most. Where more lies under the cursor nobody can tell it
// apart, and the answer may be coarse but not late.
constexpr std::size_t kMostEntities = 24;
constexpr std::size_t kMostPieces = 2000;
constexpr std::size_t kMostPoints = 200'000;

constexpr double kClosed = 1e-9;   // of a circle's radius, by which its ends may be apart
constexpr double kParallel = 1e-6; // sine of the angle between an element and its segment

// An arc of a stroke as the drawing has it.
struct Arc {
    std::optional<SnapLine::Circle> circle{};
    std::optional<PlanPoint> middle{};
    bool isClosed = false;
};

// The chain of an arc has equal pieces.
Arc arcOf(const std::vector<PlanPoint>& points, const ArcSpan& span) {
    Arc arc;
    arc.circle = circleThrough(&points[span.first], span.last - span.first + std::size_t{1});
    const std::size_t low = span.first + (span.last - span.first) / 2;
    const std::size_t high = span.first + (span.last - span.first + 1) / 2;
    const SnapLine chord{points[low], points[high], arc.circle};
    const double size = arc.circle ? arc.circle->radius : distance(points[span.first], points[low]);
    arc.isClosed = distance(points[span.first], points[span.last]) <= kClosed * size;
    if (!arc.isClosed) {
        const PlanPoint middle = between(chord.from, chord.to);
        arc.middle = low == high ? points[low] : nearestOn(chord, middle);
    }
    return arc;
}

bool isParallel(const SnapLine& a, const SnapLine& b) {
    const double ax = a.to.x - a.from.x;
    const double ay = a.to.y - a.from.y;
    const double bx = b.to.x - b.from.x;
    const double by = b.to.y - b.from.y;
    return std::abs(ax * by - ay * bx) <= kParallel * std::hypot(ax, ay) * std::hypot(bx, by);
}

// The segment of a chain that a stretch of an element runs along.
std::optional<SnapLine> segmentAlong(const std::vector<PlanPoint>& chain, const SnapLine& stretch) {
    const PlanPoint middle = between(stretch.from, stretch.to);
    std::optional<SnapLine> best;
    double least = 0.0;
    for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
        const SnapLine segment{chain[i], chain[i + 1]};
        const double away = distance(nearestOn(segment, middle), middle);
        if (isParallel(segment, stretch) && (!best || away < least)) {
            best = segment;
            least = away;
        }
    }
    return best;
}

class Scanner {
public:
    Scanner(const PlanBox& area, const SnapExclusion& exclusion, bool wantsLeads)
        : m_area(area), m_exclusion(exclusion), m_wantsLeads(wantsLeads) {}

    void take(const KdDbStub& entity, const Appearance& appearance) {
        const auto& left = m_exclusion.handles;
        if (std::find(left.begin(), left.end(), entity.handle) != left.end()) {
            return;
        }
        m_handle = entity.handle;
        const std::size_t firstPiece = scan.pieces.size();
        const bool isInHand =
            std::any_of(m_exclusion.vertices.begin(), m_exclusion.vertices.end(),
                        [&entity](const auto& vertex) { return vertex.handle == entity.handle; });
        if (!isInHand) {
            m_source = entity.kind == ObjectKind::mline ? SnapSource::element : SnapSource::line;
            for (const Stroke& stroke : appearance.strokes) {
                if (stroke.role == StrokeRole::line) {
                    takeStroke(stroke);
                }
            }
        }
        for (const std::vector<PlanPoint>& chain : appearance.chains) {
            if (m_wantsLeads) {
                takeLeads(chain, firstPiece);
            }
            takeChain(chain, isInHand);
        }
    }

    SnapScan scan;

private:
    [[nodiscard]] bool isFull() const {
        return scan.pieces.size() >= kMostPieces || m_points >= kMostPoints;
    }
    SnapPiece* add(const SnapLine& line, SnapSource source, std::size_t number) {
        if (isFull() || !touches(line.from, line.to, m_area)) {
            return nullptr;
        }
        SnapPiece& piece = scan.pieces.emplace_back();
        piece.line = line;
        piece.source = source;
        piece.handle = m_handle;
        piece.stroke = m_stroke;
        piece.number = number;
        return &piece;
    }
    void addStraight(PlanPoint from, PlanPoint to, SnapSource source, std::size_t number) {
        if (SnapPiece* const piece = add({from, to}, source, number)) {
            piece->isFromEnd = piece->isToEnd = true;
            if (from != to) {
                piece->middle = between(from, to);
            }
        }
    }

    void takeStroke(const Stroke& stroke) {
        ++m_stroke;
        if (stroke.points.size() == 1) {
            addStraight(stroke.points[0], stroke.points[0], m_source, 0);
            return;
        }
        std::size_t next = 0;
        for (const ArcSpan& span : stroke.arcs) {
            takeStraights(stroke.points, next, span.first);
            takeArc(stroke.points, span);
            next = span.last;
        }
        takeStraights(stroke.points, next, stroke.points.size() - 1);
    }
    void takeStraights(const std::vector<PlanPoint>& points, std::size_t first, std::size_t last) {
        for (std::size_t i = first; i < last && !isFull(); ++i) {
            ++m_points;
            addStraight(points[i], points[i + 1], m_source, i);
        }
    }
    void takeArc(const std::vector<PlanPoint>& points, const ArcSpan& span) {
        std::unique_ptr<const Arc> arc; // as soon as one of its pieces counts
        for (std::size_t i = span.first; i < span.last && !isFull(); ++i) {
            ++m_points;
            if (SnapPiece* const piece = add({points[i], points[i + 1]}, m_source, i)) {
                if (arc == nullptr) {
                    arc = std::make_unique<const Arc>(arcOf(points, span));
                }
                piece->line.circle = arc->circle;
                piece->middle = arc->middle;
                piece->isFromEnd = !arc->isClosed && i == span.first;
                piece->isToEnd = !arc->isClosed && i + 1 == span.last;
            }
        }
    }

    void takeChain(const std::vector<PlanPoint>& chain, bool isInHand) {
        ++m_stroke;
        const std::size_t vertices =
            chain.size() > 1 && chain.front() == chain.back() ? chain.size() - 1 : chain.size();
        const auto isHeld = [&](std::size_t i) {
            return std::any_of(m_exclusion.vertices.begin(), m_exclusion.vertices.end(),
                               [&](const auto& vertex) {
                                   return vertex.handle == m_handle && vertex.index == i % vertices;
                               });
        };
        for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
            ++m_points;
            if (!isInHand) {
                addStraight(chain[i], chain[i + 1], SnapSource::axis, i);
                continue;
            }
            for (const std::size_t end : {i, i + 1}) { // whose segments move
                if (!isHeld(end)) {
                    addStraight(chain[end], chain[end], SnapSource::axis, end);
                }
            }
        }
    }

    void takeLeads(const std::vector<PlanPoint>& chain, std::size_t firstPiece) {
        for (std::size_t i = firstPiece; i < scan.pieces.size() && !isFull(); ++i) {
            const SnapPiece& piece = scan.pieces[i];
            if (piece.source != SnapSource::element) {
                continue;
            }
            m_points += chain.size();
            if (const auto segment = segmentAlong(chain, piece.line)) {
                scan.leads.push_back({piece.line, *segment, m_handle});
            }
        }
    }

    const PlanBox& m_area;
    const SnapExclusion& m_exclusion;
    bool m_wantsLeads;
    std::uint64_t m_handle = 0;
    SnapSource m_source = SnapSource::line;
    std::size_t m_stroke = 0;
    std::size_t m_points = 0;
};

} // namespace

SnapScan scanForSnap(Scene& scene, const PlanBox& area, PlanPoint place,
                     const SnapExclusion& exclusion, bool wantsLeads) {
    Scanner scanner(area, exclusion, wantsLeads);
    scene.visitNearest(area, place, kMostEntities,
                       [&scanner](KdDbStub& entity, const Appearance& appearance) {
                           scanner.take(entity, appearance);
                       });
    return std::move(scanner.scan);
}

} // namespace orvex
