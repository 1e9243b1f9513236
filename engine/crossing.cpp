// Where two picked multilines meet: which of their segments cross, and where every element of the
// one meets every element of the other.

#include "CMlineEdit.h"
#include "KdDbMline.h"
#include "VoMath.h"
#include "crossingSearch.h"
#include "lineMath.h"
#include "pickTests.h"
#include "vectorMath.h"

#include <algorithm>
#include <vector>

using namespace mledit;

namespace {

constexpr double kAngleTolerance = 1e-10; // radians
// Sums of distances from here on are never the least.
constexpr double kFarthest = 4294967295.0;

std::vector<ChainPoint> chainOf(const CMlineSegment& seg) {
    std::vector<ChainPoint> chain;
    chain.reserve(static_cast<std::size_t>(std::max(seg.m_numVertices, 0)));
    for (int vertex = 0; vertex < seg.m_numVertices; ++vertex) {
        const KdGePoint3d at = seg.m_mline->vertexAt(vertex);
        chain.push_back({{at.x, at.y, at.z}});
    }
    return chain;
}

KdGePoint3d asPoint(const ChainPoint& point) {
    return {point.xyz[0], point.xyz[1], point.xyz[2]};
}

// Whether two segments of chains continue two others in a straight line. The picked segment's end
// isn't wrapped, so a picked closing segment continues nothing.
bool continues(std::span<const ChainPoint> chain, const ChainPoint& start, const ChainPoint& end,
               int picked) {
    const auto at = static_cast<std::size_t>(picked);
    return picked >= 0 && at + 1 < chain.size() &&
           isCollinear(asPoint(start), asPoint(end), asPoint(chain[at]), asPoint(chain[at + 1]));
}

// Whether linexline3d has written a point: overlapping lines give one of the overlap.
bool hasPoint(int result) {
    return result >= 0 || result == -2;
}

// Which pair of segments the user means.
class PairChoice {
public:
    PairChoice(CMlineEdit& edit, CMlineSegment& first, CMlineSegment& second)
        : m_edit(edit), m_first(first), m_second(second), m_pickedFirst(first.m_segment),
          m_pickedSecond(second.m_segment) {}

    // A true crossing on the picked segments, or on segments that continue both of them straight,
    // beats every other.
    [[nodiscard]] bool isMeant(const ChainPair& chains, const SegmentPair& pair) const {
        if (pair.first == m_pickedFirst && pair.second == m_pickedSecond) {
            return true;
        }
        const auto i = static_cast<std::size_t>(pair.first);
        const auto j = static_cast<std::size_t>(pair.second);
        return continues(chains.first, chains.first[i], chains.first[i + 1], m_pickedFirst) &&
               continues(chains.second, chains.second[j],
                         chains.second[chains.endOfSecond(pair.second)], m_pickedSecond);
    }

    // Otherwise the one nearest to the points of both chains opposite the picks; of two equally
    // near ones the earlier.
    void consider(const SegmentPair& pair) {
        if (!m_feetKnown) {
            m_feetKnown = true;
            copyPoint(m_first.m_pickPoint, m_firstFoot);
            copyPoint(m_second.m_pickPoint, m_secondFoot);
            m_edit.mappingToSpecifyMongline(&m_first, -1, m_firstFoot);
            m_edit.mappingToSpecifyMongline(&m_second, -1, m_secondFoot);
        }
        const double sum = tklengine_distance(pair.point, m_firstFoot) +
                           tklengine_distance(pair.point, m_secondFoot);
        if (m_least > sum) {
            m_least = sum;
            m_best = pair;
            m_found = true;
        }
    }

    [[nodiscard]] const SegmentPair* best() const { return m_found ? &m_best : nullptr; }

private:
    CMlineEdit& m_edit;
    CMlineSegment& m_first;
    CMlineSegment& m_second;
    int m_pickedFirst;
    int m_pickedSecond;
    bool m_feetKnown = false;
    double m_firstFoot[3] = {0.0, 0.0, 0.0};
    double m_secondFoot[3] = {0.0, 0.0, 0.0};
    double m_least = kFarthest;
    bool m_found = false;
    SegmentPair m_best{};
};

} // namespace

bool CMlineEdit::getSegmentNumbers(CMlineSegment* first, CMlineSegment* second, int* firstSegment,
                                   int* secondSegment, double* point, bool crossMode) {
    const bool sameEntity = isSameEntity(first->m_name, second->m_name);
    if (sameEntity && first->m_segment == second->m_segment) {
        return false;
    }
    const std::vector<ChainPoint> firstChain = chainOf(*first);
    const std::vector<ChainPoint> secondChain = chainOf(*second);
    const ChainPair chains{firstChain, secondChain, isClosed(*second), sameEntity};

    PairChoice choice(*this, *first, *second);
    CrossingSearch search(chains, crossMode ? CrossRule::cross : CrossRule::tee);
    const SegmentPair* chosen = nullptr;
    SegmentPair pair{};
    bool crossesOnBoth = false;
    while (chosen == nullptr && search.next(pair, crossesOnBoth)) {
        if (crossesOnBoth && choice.isMeant(chains, pair)) {
            chosen = &pair;
        } else {
            choice.consider(pair);
        }
    }
    if (chosen == nullptr) {
        chosen = choice.best();
    }
    if (chosen == nullptr) {
        return false;
    }
    *firstSegment = first->m_segment = first->m_mappedSegment = chosen->first;
    *secondSegment = second->m_segment = second->m_mappedSegment = chosen->second;
    if (point != nullptr) {
        copyPoint(chosen->point, point);
    }
    return true;
}

// Only the same direction is refused: segments that run against each other are tried.
bool CMlineEdit::set_PTCrossing(const CMlineSegment* first, int firstSegment,
                                const CMlineSegment* second, int secondSegment,
                                PointTable* crossing, int* crossingSize) {
    const int next = secondSegment < second->m_numVertices - 1 ? secondSegment + 1 : 0;
    const bool inside = firstSegment >= 0 && firstSegment + 1 < first->m_numVertices &&
                        secondSegment >= 0 && secondSegment < second->m_numVertices &&
                        first->m_numElements > 0 && second->m_numElements > 0;
    if (!inside) {
        return false;
    }
    const double firstAngle =
        tklengine_angle(first->m_ptList[0][firstSegment], first->m_ptList[0][firstSegment + 1]);
    const double secondAngle =
        tklengine_angle(second->m_ptList[0][secondSegment], second->m_ptList[0][next]);
    if (VoMath::isEqual(firstAngle, secondAngle, kAngleTolerance)) {
        return false;
    }
    freePointTable(*crossing, *crossingSize);
    *crossing = newPointTable(first->m_numElements, second->m_numElements);
    *crossingSize = first->m_numElements;
    m_solvedCrossings.reset(first->m_numElements, second->m_numElements);

    bool anySolved = false;
    for (int i = 0; i < first->m_numElements; ++i) {
        for (int j = 0; j < second->m_numElements; ++j) {
            const int result = linexline3d(
                first->m_ptList[i][firstSegment], first->m_ptList[i][firstSegment + 1],
                second->m_ptList[j][secondSegment], second->m_ptList[j][next], (*crossing)[i][j]);
            anySolved = anySolved || result >= 0;
            if (hasPoint(result)) {
                m_solvedCrossings.markSolved(i, j);
            }
        }
    }
    return anySolved;
}

bool CMlineEdit::getXPoint(KdDbMline* first, int firstSegment, KdDbMline* second, int secondSegment,
                           double* point) {
    const auto hasSegment = [](const KdDbMline* mline, int segment) {
        return segment >= 0 && segment + 1 < mline->numVertices();
    };
    if (!hasSegment(first, firstSegment) || !hasSegment(second, secondSegment)) {
        return false;
    }
    const auto vertex = [](const KdDbMline* mline, int index) {
        const KdGePoint3d at = mline->vertexAt(index);
        return ChainPoint{{at.x, at.y, at.z}};
    };
    return hasPoint(linexline3d(
        vertex(first, firstSegment).xyz, vertex(first, firstSegment + 1).xyz,
        vertex(second, secondSegment).xyz, vertex(second, secondSegment + 1).xyz, point));
}
