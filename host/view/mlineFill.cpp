#include "mlineParts.h"

#include <algorithm>
#include <array>

namespace orvex {

namespace {

using Outline = std::vector<KdGePoint3d>;

// The elements, by position, whose area lists bound the fill of a segment.
std::vector<unsigned> edgesOfFill(const MlineChain& chain, unsigned segment,
                                  std::span<const unsigned> across) {
    std::vector<unsigned> edges;
    std::copy_if(across.begin(), across.end(), std::back_inserter(edges),
                 [&](unsigned element) { return !chain.area(segment, element).empty(); });
    return edges;
}

std::vector<MlineStretch> stretchesOf(std::span<const double> list, double length) {
    std::vector<MlineStretch> stretches;
    forEachStretch(list, length,
                   [&](const MlineStretch& stretch) { stretches.push_back(stretch); });
    return stretches;
}

// Between two neighbouring lists the stretches of the one belong to those of the other in order.
void fillBetweenLists(const MlineChain& chain, unsigned segment, unsigned left, unsigned right,
                      MlineSink& sink) {
    const MlineTrack a = chain.areaTrack(segment, left);
    const MlineTrack b = chain.areaTrack(segment, right);
    const auto ofA = stretchesOf(chain.area(segment, left), a.length);
    const auto ofB = stretchesOf(chain.area(segment, right), b.length);
    for (std::size_t i = 0; i < std::min(ofA.size(), ofB.size()); ++i) {
        const std::array<KdGePoint3d, 4> cell{a.at(ofA[i].begin), stretchEnd(a, ofA[i]),
                                              stretchEnd(b, ofB[i]), b.at(ofB[i].begin)};
        sink.fill(cell);
    }
}

// Segments filled from outer element to outer element make one outline, so that no seams show
// between them.
class UnbrokenFill {
public:
    UnbrokenFill(const MlineChain& chain, unsigned left, unsigned right, MlineSink& sink)
        : m_chain(chain), m_left(left), m_right(right), m_sink(sink) {}

    void addSegment(unsigned segment) {
        if (m_leftSide.empty()) {
            addVertex(segment);
        }
        addVertex(m_chain.next(segment));
    }
    void finish() {
        if (!m_leftSide.empty()) {
            m_leftSide.insert(m_leftSide.end(), m_rightSide.rbegin(), m_rightSide.rend());
            m_sink.fill(m_leftSide);
        }
        m_leftSide.clear();
        m_rightSide.clear();
    }

private:
    void addVertex(unsigned vertex) {
        m_leftSide.push_back(m_chain.position(vertex, m_left));
        m_rightSide.push_back(m_chain.position(vertex, m_right));
    }

    const MlineChain& m_chain;
    unsigned m_left;
    unsigned m_right;
    MlineSink& m_sink;
    Outline m_leftSide;
    Outline m_rightSide;
};

} // namespace

void drawFill(const MlineChain& chain, std::span<const unsigned> across, MlineSink& sink) {
    UnbrokenFill unbroken(chain, across.front(), across.back(), sink);
    for (unsigned segment = 0; segment < chain.segmentCount(); ++segment) {
        const auto edges = edgesOfFill(chain, segment, across);
        if (edges.size() < 2) { // one list alone bounds nothing
            unbroken.addSegment(segment);
            continue;
        }
        unbroken.finish();
        for (std::size_t i = 1; i < edges.size(); ++i) {
            fillBetweenLists(chain, segment, edges[i - 1], edges[i], sink);
        }
    }
    unbroken.finish();
}

} // namespace orvex
