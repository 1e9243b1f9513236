// Moving one vertex of a multiline, and what that does to the axes, miters and break lists around
// it. Each element stays at its style's offset, and breaks stay where they lie as far as the kind
// of move allows.

#include "CMlineEdit.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "VoMath.h"
#include "comparisons.h"
#include "editFrame.h"
#include "lineMath.h"
#include "measure.h"
#include "mlineAccessors.h"
#include "parameterLists.h"
#include "shiftList.h"
#include "styleAccessors.h"
#include "vectorMath.h"
#include "vertexChain.h"

#include <optional>
#include <vector>

using namespace mledit;

namespace {

constexpr double kSameDirection = 1e-10; // radians

// Where a vertex is moved to, relative to the segment to a neighbour.
enum class Move { forward, backward, sideways };

// No wrap-around at 2 pi: directions just either side of 0 count as different.
Move classify(const double* origin, const double* target, const double* newPosition) {
    const double moved = kdutAngle(origin, newPosition);
    const double ahead = kdutAngle(origin, target);
    if (VoMath::isEqual(moved, ahead, kSameDirection)) {
        return Move::forward;
    }
    const double back = ahead > kPi ? ahead - kPi : ahead + kPi;
    return VoMath::isEqual(moved, back, kSameDirection) ? Move::backward : Move::sideways;
}

// Offsets of the elements from the chain. With zero justification the table is centred on half its
// width, whatever the style's own zero line is.
std::vector<double> elementOffsets(const KdDbMline* mline, KdDbMlineStyle* style, int count) {
    std::vector<double> offsets(static_cast<std::size_t>(count));
    GetElemOffset(style, offsets.data(), count);
    const double last = offsets.back();
    for (double& offset : offsets) {
        offset = (offset - last) * mline->scale();
    }
    const double width = offsets.front();
    const int justification = mline->justification();
    const double shift = justification == 0 ? width : justification == 1 ? width / 2.0 : 0.0;
    for (double& offset : offsets) {
        offset -= shift;
    }
    return offsets;
}

// One move of one vertex: V, with N and NN after it, P and PP before it.
class VertexShift {
public:
    VertexShift(CMlineEdit& edit, KdDbMline* mline, int vertex, const double* newPosition,
                PointTable ptList, KdDbMlineStyle* style, int numElements)
        : m_edit(edit), m_mline(mline), m_v(vertex), m_count(mline->numVertices()),
          m_elements(numElements), m_closed(isClosed(mline)),
          m_around(neighboursOf(vertex, m_count, m_closed)), m_ptList(ptList),
          m_chain(VertexChain::of(mline)), m_offsets(elementOffsets(mline, style, numElements)),
          m_frame(frameOf(mline)), m_ends(anglesOf(mline, *style)) {
        copyPoint(newPosition, m_new);
    }

    void run() {
        if (turnMoved() && turnPrevious()) {
            turnNext();
            copyPoint(m_new, vertexAt(m_v));
            m_chain.store(m_mline);
        }
    }

private:
    static EditFrame frameOf(const KdDbMline* mline) {
        double normal[3] = {0.0, 0.0, 0.0};
        GetNormal(mline, normal);
        return EditFrame::ofPlane(normal);
    }
    static EndAngles anglesOf(const KdDbMline* mline, const KdDbMlineStyle& style) {
        double normal[3] = {0.0, 0.0, 0.0};
        GetNormal(mline, normal);
        return endAngles(style, normal);
    }

    double* vertexAt(int vertex) {
        return m_chain.vertices[static_cast<std::size_t>(vertex)].data();
    }
    double* axisAt(int vertex) { return m_chain.axes[static_cast<std::size_t>(vertex)].data(); }
    double* miterAt(int vertex) { return m_chain.miters[static_cast<std::size_t>(vertex)].data(); }
    [[nodiscard]] bool isOpenFirst(int vertex) const { return !m_closed && vertex == 0; }
    [[nodiscard]] bool isOpenLast(int vertex) const { return !m_closed && vertex == m_count - 1; }

    // Direction between two points, measured in the multiline's plane.
    [[nodiscard]] double angle(const double* from, const double* to) const {
        double a[3];
        double b[3];
        m_frame.toFrame(from, a);
        m_frame.toFrame(to, b);
        return kdutAngle(a, b);
    }

    // Gives up all breaks of a vertex's lists.
    void reset(int vertex, double miter, double axis) {
        for (int k = 0; k < m_elements; ++k) {
            storeLineList(m_mline, vertex, k,
                          unbrokenList(m_offsets[static_cast<std::size_t>(k)], miter - axis));
        }
    }

    // Rewrites every element's list at a vertex.
    template <class Change>
    void change(int vertex, Change&& changed) {
        for (int k = 0; k < m_elements; ++k) {
            storeLineList(m_mline, vertex, k, changed(lineList(m_mline, vertex, k), k));
        }
    }
    void dropIntervals(int vertex) {
        change(vertex, [](BreakList list, int) { return withoutIntervals(std::move(list)); });
    }

    // How far along element k, from its position at one vertex towards that at another, the new
    // position lies.
    double distanceAlong(int k, int from, int towards) {
        double foot[3] = {0.0, 0.0, 0.0};
        m_edit.Distance_PointToLine(m_new, m_ptList[k][from], m_ptList[k][towards], nullptr,
                                    nullptr, foot);
        return tklengine_distance(m_ptList[k][from], foot);
    }

    // Axis, miter and lists of the moved vertex. False when there is nothing to move.
    bool turnMoved() {
        double axis = 0.0;
        if (isOpenLast(m_v)) {
            axis = angle(vertexAt(m_around.previous), m_new);
        } else {
            axis = angle(m_new, vertexAt(m_around.next));
        }
        double miter = 0.0;
        if (isOpenFirst(m_v)) {
            miter = axis + m_ends.start;
        } else if (isOpenLast(m_v)) {
            miter = axis + m_ends.end;
        } else {
            miter = bisect(axis, angle(m_new, vertexAt(m_around.previous)));
        }
        m_frame.direction(axis, axisAt(m_v));
        m_frame.direction(miter, miterAt(m_v));
        return moveStart(axis, miter);
    }

    // The segment that leaves the moved vertex. The last vertex of an open chain gets fresh lists
    // even when it stays where it is.
    bool moveStart(double axis, double miter) {
        if (isOpenLast(m_v)) {
            reset(m_v, miter, axis);
            return true;
        }
        if (gx_pt_equal(vertexAt(m_v), m_new) != 0) {
            return false;
        }
        const int next = m_around.next;
        if (gx_pt_equal(vertexAt(m_v), vertexAt(next)) != 0) {
            dropIntervals(m_v);
            return true;
        }
        switch (classify(vertexAt(m_v), vertexAt(next), m_new)) {
        case Move::forward:
            change(m_v, [&](BreakList list, int k) {
                return shortenFromStart(std::move(list), distanceAlong(k, m_v, next));
            });
            break;
        case Move::backward:
            change(m_v, [&](BreakList list, int k) {
                return lengthenAtStart(std::move(list), distanceAlong(k, m_v, next));
            });
            break;
        case Move::sideways:
            reset(m_v, miter, axis);
            break;
        }
        return true;
    }

    // Axis, miter and lists of the vertex before. False when nothing is to be stored; what became
    // of the moved vertex's lists is kept.
    bool turnPrevious() {
        if (isOpenFirst(m_v)) {
            return true;
        }
        const int previous = m_around.previous;
        const double axis = angle(vertexAt(previous), m_new);
        const double miter =
            isOpenFirst(previous)
                ? axis + m_ends.start
                : bisect(axis, angle(vertexAt(previous), vertexAt(m_around.beforePrevious)));
        m_frame.direction(axis, axisAt(previous));
        m_frame.direction(miter, miterAt(previous));

        if (gx_pt_equal(vertexAt(previous), m_new) != 0) {
            // By number, not by neighbourhood: before vertex 0 of a closed chain there is no such
            // vertex, and its segment keeps its runs.
            dropIntervals(m_v - 1);
            return true;
        }
        if (gx_pt_equal(vertexAt(previous), vertexAt(m_v)) != 0) {
            return false;
        }
        switch (classify(vertexAt(previous), vertexAt(m_v), m_new)) {
        case Move::forward: // nearer or farther on the same ray
            change(previous, [&](BreakList list, int k) {
                return endAt(std::move(list), distanceAlong(k, previous, m_v));
            });
            break;
        case Move::backward:
            break;
        case Move::sideways:
            reset(previous, miter, axis);
            break;
        }
        return true;
    }

    // Miter and lists of the vertex after.
    void turnNext() {
        if (isOpenLast(m_v)) {
            return;
        }
        const int next = m_around.next;
        if (isOpenLast(next)) {
            copyPoint(axisAt(m_v), axisAt(next));
            m_frame.direction(angle(m_new, vertexAt(next)) + m_ends.end, miterAt(next));
            return;
        }
        double miter[3] = {0.0, 0.0, 0.0};
        m_frame.direction(bisect(angle(vertexAt(next), vertexAt(m_around.afterNext)),
                                 angle(vertexAt(next), m_new)),
                          miter);
        // The stored sense is kept, so that offsets keep their signs.
        const double opposite[3] = {-miter[0], -miter[1], -miter[2]};
        copyPoint(gx_pt_equal(opposite, miterAt(next)) != 0 ? opposite : miter, miterAt(next));
        slideStarts();
    }

    // The elements' starts slide to the new miter of the vertex after.
    void slideStarts() {
        const int next = m_around.next;
        const int afterNext = m_around.afterNext;
        const double* const vertex = vertexAt(next);
        const double* const miter = miterAt(next);
        const double end[3] = {vertex[0] + miter[0], vertex[1] + miter[1], vertex[2] + miter[2]};
        // An element parallel to the miter takes the crossing of the one before it.
        std::optional<VertexChain::Xyz> start;
        for (int k = 0; k < m_elements; ++k) {
            VertexChain::Xyz crossing = start.value_or(VertexChain::Xyz{});
            if (gx_linexline(end, vertex, m_ptList[k][next], m_ptList[k][afterNext],
                             crossing.data()) != -1) {
                start = crossing;
            }
            if (start) {
                slideStart(k, start->data());
            }
        }
    }

    void slideStart(int k, const double* start) {
        const int next = m_around.next;
        const double* const oldStart = m_ptList[k][next];
        if (gx_pt_equal(start, oldStart) != 0) {
            return;
        }
        double offset = 0.0;
        m_edit.Distance_PointToPoint(start, vertexAt(next), &offset, vertexAt(m_around.afterNext));
        const double distance = tklengine_distance(start, oldStart);
        const bool grows =
            VoMath::isEqual(kdutAngle(start, oldStart),
                            kdutAngle(start, m_ptList[k][m_around.afterNext]), kSameDirection);
        BreakList list = lineList(m_mline, next, k);
        list = grows ? growAtStart(std::move(list), distance, offset)
                     : shrinkAtStart(std::move(list), distance, offset);
        storeLineList(m_mline, next, k, list);
    }

    CMlineEdit& m_edit;
    KdDbMline* m_mline;
    int m_v;
    int m_count;
    int m_elements;
    bool m_closed;
    Neighbours m_around;
    PointTable m_ptList; // the positions of before the move, throughout
    VertexChain m_chain;
    std::vector<double> m_offsets;
    EditFrame m_frame;
    EndAngles m_ends;
    double m_new[3] = {0.0, 0.0, 0.0};
};

} // namespace

void CMlineEdit::changePTPosition(KdDbMline* mline, int vertex, const double* newPosition,
                                  PointTable ptList) {
    int numElements = 0;
    GetSegmentsSize(mline, &numElements);
    if (vertex < 0 || vertex >= mline->numVertices() || mline->numVertices() < 2 ||
        numElements < 1 || ptList == nullptr) {
        return;
    }
    // Without a style the elements have no offsets to be kept at.
    const OpenStyle style(mline);
    if (style.get() != nullptr) {
        VertexShift(*this, mline, vertex, newPosition, ptList, style.get(), numElements).run();
    }
}

// The multiline's normal plays no part here.
void CMlineEdit::Distance_PointToPoint(const double* point, const double* origin, double* result,
                                       const double* reference) {
    *result = tklengine_distance(point, origin);
    if (reference == nullptr) {
        return;
    }
    const C3Point toPoint(point[0] - origin[0], point[1] - origin[1], point[2] - origin[2]);
    const C3Point ahead(reference[0] - origin[0], reference[1] - origin[1],
                        reference[2] - origin[2]);
    if (Determinant(toPoint, ahead, nullptr) > 0.0) {
        *result = -*result;
    }
}

void CMlineEdit::Distance_PointToLine(const double* point, const double* lineStart,
                                      const double* lineEnd, const double* normal, double* distance,
                                      double* foot) {
    double onLine[3] = {0.0, 0.0, 0.0};
    gx_ptlndist(point, lineStart, lineEnd, distance, onLine);
    if (distance != nullptr) {
        const C3Point toPoint(point[0] - onLine[0], point[1] - onLine[1], point[2] - onLine[2]);
        const C3Point ahead(lineEnd[0] - onLine[0], lineEnd[1] - onLine[1], lineEnd[2] - onLine[2]);
        if (Determinant(toPoint, ahead, nullptr) > 0.0) {
            *distance = -*distance;
        }
        if (normal[2] < 0.0) {
            *distance = -*distance;
        }
    }
    if (foot != nullptr) {
        copyPoint(onLine, foot);
    }
}
