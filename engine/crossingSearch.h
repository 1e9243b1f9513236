#pragma once

#include <cstddef>
#include <span>
#include <vector>

// The search for the pair of chain segments in which two multilines cross: pure geometry on two
// vertex chains, world coordinates, seen in plan.

namespace mledit {

struct ChainPoint {
    double xyz[3];
};

// How a pair has to cross to be a candidate.
enum class CrossRule {
    cross, // on one of its segments at least, the other may have to be extended
    tee,   // on the second's segment; the first may stop short of it or end on it
};

// A pair of segments and where their axes cross.
struct SegmentPair {
    int first;
    int second;
    double point[3];
};

// The two chains of a search. The first is searched as an open chain even when it is closed; a
// closed second has its closing segment tried, last.
struct ChainPair {
    std::span<const ChainPoint> first;
    std::span<const ChainPoint> second;
    bool secondClosed = false;
    bool sameEntity = false; // then a segment isn't paired with itself

    [[nodiscard]] int firstSegments() const { return static_cast<int>(first.size()) - 1; }
    [[nodiscard]] int secondSegments() const {
        return static_cast<int>(second.size()) - (secondClosed ? 0 : 1);
    }
    // Where segment j of the second chain ends.
    [[nodiscard]] std::size_t endOfSecond(int j) const {
        const auto next = static_cast<std::size_t>(j) + 1;
        return next < second.size() ? next : 0;
    }
};

// Walks the candidate pairs, in the order of the first chain, then the second. The
// point of a pair whose axes have no single crossing is that of the pair solved last: it is
// a candidate when it happens to lie inside both segments, and that is relied upon.
//
// A pair whose segments lie clear of each other's lines can't be a candidate, so it is skipped
// unsolved; what its point would have been is computed when a later pair asks for it.
class CrossingSearch {
public:
    CrossingSearch(const ChainPair& chains, CrossRule rule);

    // The next candidate pair; false at the end. `crossesOnBoth` says that the
    // crossing lies on both segments.
    bool next(SegmentPair& pair, bool& crossesOnBoth);

private:
    struct Line {
        double start[2];
        double direction[2];
        double length;
        double low[2];
        double high[2];
    };

    [[nodiscard]] bool mayMeet(int i, int j) const;
    bool step();
    int solve(int i, int j, double* point) const;
    void bringPointUpTo(long position);
    [[nodiscard]] bool isCandidate(int i, int j, int result) const;
    [[nodiscard]] bool isSkipped(int i, int j) const { return m_chains.sameEntity && i == j; }

    ChainPair m_chains;
    CrossRule m_rule;
    std::vector<Line> m_firstLines;
    std::vector<Line> m_secondLines;
    double m_margin = 0.0;   // how far a computed crossing may stray, drawing units
    double m_short = 0.0;    // segments up to this length are always solved
    bool m_canSkip = false;  // heights are all alike, so no pair depends on the one before
    double m_height = 0.0;   // then the z of every solved crossing
    long m_firstSolved = -1; // position of the first pair that has a crossing
    int m_i = 0;
    int m_j = -1;
    double m_point[3] = {0.0, 0.0, 0.0};
    long m_pointPosition = -1; // m_point is as it was after this position
};

} // namespace mledit
