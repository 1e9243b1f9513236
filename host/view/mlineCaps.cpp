#include "geometry.h"
#include "mlineParts.h"

#include <array>
#include <cmath>

namespace orvex {

namespace {

KdGePoint3d middleOf(const KdGePoint3d& a, const KdGePoint3d& b) {
    return a + (b - a) * 0.5;
}

// One end of an open chain.
struct ChainEnd {
    unsigned vertex = 0;
    unsigned segment = 0; // the one that ends there
    bool atStart = true;

    [[nodiscard]] bool isReached(const MlineChain& chain, unsigned element) const {
        return atStart ? chain.reachesStart(segment, element) : chain.reachesEnd(segment, element);
    }
    // Away from the multiline.
    [[nodiscard]] KdGeVector3d outward(const MlineChain& chain) const {
        const KdGeVector3d direction =
            chain.vertex(segment + 1).position - chain.vertex(segment).position;
        const KdGeVector3d along =
            direction.isZeroLength() ? chain.vertex(segment).axis : direction;
        return atStart ? -along : along;
    }
};

void drawLineBetween(const MlineChain& chain, unsigned vertex, unsigned first, unsigned second,
                     StrokeRole role, MlineSink& sink) {
    const KdGePoint3d from = chain.position(vertex, first);
    const KdGePoint3d to = chain.position(vertex, second);
    if (from != to) {
        const std::array<KdGePoint3d, 3> line{from, middleOf(from, to), to};
        sink.crossing(line, role, first, second);
    }
}

// The half circle over the line between two elements that bulges away from the multiline.
void drawHalfCircle(const MlineChain& chain, const ChainEnd& end, unsigned first, unsigned second,
                    MlineSink& sink) {
    const KdGePoint3d from = chain.position(end.vertex, first);
    const KdGePoint3d to = chain.position(end.vertex, second);
    const KdGePoint3d center = middleOf(from, to);
    const KdGeVector3d radius = from - center;
    const double size = radius.length();
    const KdGeVector3d outward = end.outward(chain);
    const double along = dot(outward, radius);
    // Only what is square to the radius, for the miter may be slanting.
    KdGeVector3d top = outward - radius * (size > 0.0 ? along / (size * size) : 0.0);
    const double topSize = top.length();
    if (!(size > 0.0 && topSize > 0.0)) {
        return;
    }
    top = top * (size / topSize);
    sink.halfCircle(center, radius, top, first, second);
}

// Line, inner arcs and outer arc of one end; each flag as the style has it at that end.
struct CapKinds {
    bool line = false;
    bool innerArcs = false;
    bool outerArc = false;
};

void drawEndCaps(const MlineChain& chain, const ChainEnd& end, const CapKinds& kinds,
                 std::span<const unsigned> across, MlineSink& sink) {
    const auto bothReach = [&](unsigned first, unsigned second) {
        return end.isReached(chain, first) && end.isReached(chain, second);
    };
    const unsigned first = across.front();
    const unsigned last = across.back();
    if ((kinds.line || kinds.outerArc) && bothReach(first, last)) {
        if (kinds.line) {
            drawLineBetween(chain, end.vertex, first, last, StrokeRole::cap, sink);
        }
        if (kinds.outerArc) {
            drawHalfCircle(chain, end, first, last, sink);
        }
    }
    if (kinds.innerArcs) {
        // Pairs from outside in; of an odd number the middle one stays alone.
        for (std::size_t i = 1; i + 1 < across.size() - i; ++i) {
            const unsigned one = across[i];
            const unsigned other = across[across.size() - 1 - i];
            if (bothReach(one, other)) {
                drawHalfCircle(chain, end, one, other, sink);
            }
        }
    }
}

} // namespace

void drawCaps(const MlineContent& mline, const MlineChain& chain, int styleFlags,
              std::span<const unsigned> across, MlineSink& sink) {
    const auto has = [styleFlags](int flag) { return (styleFlags & flag) != 0; };
    if (!mline.startCapsSuppressed) {
        const CapKinds kinds{has(kStyleStartLine), has(kStyleStartArcs), has(kStyleStartRound)};
        drawEndCaps(chain, {0, 0, true}, kinds, across, sink);
    }
    if (!mline.endCapsSuppressed) {
        const CapKinds kinds{has(kStyleEndLine), has(kStyleEndArcs), has(kStyleEndRound)};
        const unsigned last = chain.vertexCount() - 1;
        drawEndCaps(chain, {last, last - 1, false}, kinds, across, sink);
    }
}

void drawJoints(const MlineChain& chain, std::span<const unsigned> across, MlineSink& sink) {
    const unsigned first = across.front();
    const unsigned last = across.back();
    const unsigned begin = chain.isClosed() ? 0 : 1;
    const unsigned end = chain.isClosed() ? chain.vertexCount() : chain.vertexCount() - 1;
    for (unsigned vertex = begin; vertex < end; ++vertex) {
        // In a gap over the corner there is nothing to join.
        const unsigned before = (vertex + chain.vertexCount() - 1) % chain.vertexCount();
        const auto meets = [&](unsigned element) {
            return chain.reachesEnd(before, element) || chain.reachesStart(vertex, element);
        };
        if (meets(first) && meets(last)) {
            drawLineBetween(chain, vertex, first, last, StrokeRole::joint, sink);
        }
    }
}

} // namespace orvex
