#include "vertexTools.h"

#include "CMlineEdit.h"
#include "KdDbMline.h"
#include "VoMath.h"
#include "comparisons.h"
#include "editFrame.h"
#include "measure.h"
#include "mlineAccessors.h"
#include "parameterLists.h"
#include "shiftList.h"
#include "vectorMath.h"
#include "vertexChain.h"

#include <algorithm>
#include <memory>

using namespace mledit;

namespace {

using Xyz = VertexChain::Xyz;

constexpr double kSameDirection = 1e-10; // radians
constexpr double kNoBreak = 1e-10;       // drawing units

std::unique_ptr<KdDbMline> copyOf(const KdDbMline* mline) {
    auto copy = std::make_unique<KdDbMline>();
    copy->copyFrom(mline);
    return copy;
}

EditFrame frameOf(const KdDbMline* mline) {
    double normal[3] = {0.0, 0.0, 0.0};
    GetNormal(mline, normal);
    return EditFrame::overlaid(normal);
}

// Both lists of an element at one vertex.
void carryLists(const KdDbMline* from, int oldVertex, KdDbMline* to, int newVertex, int element) {
    storeLineList(to, newVertex, element, lineList(from, oldVertex, element));
    storeAreaList(to, newVertex, element, areaList(from, oldVertex, element));
}

void carryVertex(const KdDbMline* from, int oldVertex, KdDbMline* to, int newVertex,
                 int numElements) {
    for (int k = 0; k < numElements; ++k) {
        carryLists(from, oldVertex, to, newVertex, k);
    }
}

// Direction in plan between two points, in the frame.
double angleIn(const EditFrame& frame, const double* from, const double* to) {
    double a[3];
    double b[3];
    frame.toFrame(from, a);
    frame.toFrame(to, b);
    return tklengine_angle(a, b);
}

bool isElementPosition(const CMlineSegment& seg, const double* position) {
    for (int k = 0; k < seg.m_numElements; ++k) {
        for (int v = 0; v < seg.m_numVertices; ++v) {
            if (gx_pt_equal(position, seg.m_ptList[k][v]) != 0) {
                return true;
            }
        }
    }
    return false;
}

// The removal of vertex D of an entity that had `m_count` vertices: the lists and the two vertices
// next to the gap. Indices are those of the old vertices, slots their indices afterwards.
class VertexRemoval {
public:
    VertexRemoval(CMlineEdit& edit, CMlineSegment& seg, int vertex, const KdDbMline& copy,
                  const EndAngles& ends)
        : m_edit(edit), m_mline(seg.m_mline), m_ptList(seg.m_ptList), m_copy(copy), m_d(vertex),
          m_count(seg.m_numVertices), m_elements(seg.m_numElements), m_closed(isClosed(&copy)),
          m_around(neighboursOf(vertex, m_count, m_closed)), m_frame(frameOf(&copy)), m_ends(ends),
          m_chain(VertexChain::of(&copy)) {
        GetNormal(&copy, m_normal);
    }

    void run() {
        int elements = 0;
        GetSegmentsSize(&m_copy, &elements);
        SetNumVertices(m_mline, m_count - 1);
        SetSegmentsSize(m_mline, elements);
        const auto drop = [this](std::vector<Xyz>& points) { points.erase(points.begin() + m_d); };
        drop(m_chain.vertices);
        drop(m_chain.axes);
        drop(m_chain.miters);
        turnPrevious();
        turnNext();
        m_chain.store(m_mline);
        for (int old = 0; old < m_count; ++old) {
            rewriteLists(old);
        }
    }

private:
    [[nodiscard]] bool exists(int vertex) const { return vertex >= 0 && vertex < m_count; }

    // Between element 0's positions, not the vertices.
    [[nodiscard]] double angle(int from, int to) const {
        return angleIn(m_frame, m_ptList[0][from], m_ptList[0][to]);
    }

    void setDirections(int slot, double axis, double miter) {
        m_frame.direction(axis, m_chain.axes[static_cast<std::size_t>(slot)].data());
        m_frame.direction(miter, m_chain.miters[static_cast<std::size_t>(slot)].data());
    }

    void turnPrevious() {
        const auto [next, afterNext, previous, beforePrevious] = m_around;
        if (!exists(previous)) {
            return;
        }
        const double axis = exists(next) ? angle(previous, next) : angle(beforePrevious, previous);
        // A free first vertex next to the gap takes the style's end angle. A new last vertex takes
        // none: its two directions are opposite, which makes a square end.
        const double miter = exists(beforePrevious) ? bisect(axis, angle(previous, beforePrevious))
                                                    : axis + m_ends.end;
        setDirections(previous > m_d ? m_count - 2 : previous, axis, miter);
    }

    void turnNext() {
        const auto [next, afterNext, previous, beforePrevious] = m_around;
        if (!exists(next)) {
            return;
        }
        const double axis = exists(afterNext) ? angle(next, afterNext) : angle(previous, next);
        // On an open chain a new last vertex takes the start angle, as a new first one does.
        const bool isFree = !m_closed && (m_d == 0 || m_d == m_count - 2);
        const double miter = isFree ? axis + m_ends.start : bisect(axis, angle(next, previous));
        setDirections(m_d >= m_count - 1 ? 0 : m_d, axis, miter);
    }

    void rewriteLists(int old) {
        if (old == m_d) {
            return;
        }
        if (old == m_around.previous) {
            rewritePrevious(old, old == m_count - 1 ? old - 1 : old);
        } else if (old == m_around.next) {
            rewriteNext(old, old == 0 ? 0 : old - 1);
        } else {
            carryVertex(&m_copy, old, m_mline, old >= m_d - 1 ? old - 1 : old, m_elements);
        }
    }

    // Angles of the axis and the miter that a slot has now.
    [[nodiscard]] double slotAngle(const std::vector<Xyz>& directions, int slot) const {
        const double origin[3] = {0.0, 0.0, 0.0};
        double inFrame[3];
        m_frame.directionToFrame(directions[static_cast<std::size_t>(slot)].data(), inFrame);
        return tklengine_angle(origin, inFrame);
    }

    // The offset of element k from the chain, always measured at vertex 0 and the new first
    // segment, whichever vertex went.
    double offsetOf(int k) {
        double distance = 0.0;
        m_edit.Distance_PointToLine(m_ptList[k][0], m_chain.vertices[0].data(),
                                    m_chain.vertices[1].data(), m_normal, &distance, nullptr);
        return distance;
    }

    // The segment over the gap is unbroken.
    void rewritePrevious(int old, int slot) {
        const double turn = slotAngle(m_chain.miters, slot) - slotAngle(m_chain.axes, slot);
        for (int k = 0; k < m_elements; ++k) {
            storeLineList(m_mline, slot, k, unbrokenList(offsetOf(k), turn));
            storeAreaList(m_mline, slot, k, areaList(&m_copy, old, k));
        }
    }

    // The segment after the gap keeps its breaks, moved with its start.
    void rewriteNext(int old, int slot) {
        const double turn = slotAngle(m_chain.axes, slot) + kPi - slotAngle(m_chain.miters, slot);
        for (int k = 0; k < m_elements; ++k) {
            std::vector<double> list = lineList(&m_copy, old, k);
            if (!list.empty()) {
                list[0] = alongMiter(offsetOf(k), turn);
                if (exists(m_around.afterNext)) {
                    followStart(list, old, slot, k);
                }
            }
            storeLineList(m_mline, slot, k, list);
            storeAreaList(m_mline, slot, k, areaList(&m_copy, old, k));
        }
    }

    // Element 0's position serves for every element, and a start that isn't 0 moves the offset
    // instead of itself.
    void followStart(std::vector<double>& list, int old, int slot, int k) const {
        const Xyz& miter = m_chain.miters[static_cast<std::size_t>(slot)];
        double start[3];
        for (int i = 0; i < 3; ++i) {
            start[i] = m_ptList[0][old][i] + miter[static_cast<std::size_t>(i)] * list[0];
        }
        double distance = tklengine_distance(start, m_ptList[k][old]);
        if (!VoMath::isEqual(kdutAngle(start, m_ptList[k][old]),
                             kdutAngle(start, m_ptList[k][m_around.afterNext]), kSameDirection)) {
            distance = -distance;
        }
        if (list.size() > 1 && !VoMath::isEqual(list[1], 0.0, kNoBreak)) {
            list[0] += distance;
        }
        for (std::size_t index = 2; index < list.size(); ++index) {
            list[index] += distance;
        }
    }

    CMlineEdit& m_edit;
    KdDbMline* m_mline;
    PointTable m_ptList; // of before the removal
    const KdDbMline& m_copy;
    int m_d;
    int m_count;
    int m_elements;
    bool m_closed;
    Neighbours m_around;
    EditFrame m_frame;
    EndAngles m_ends;
    VertexChain m_chain; // without the vertex, once it is dropped
    double m_normal[3] = {0.0, 0.0, 0.0};
};

// The lists of the picked segment: its first half keeps what lies before the new vertex, the second
// starts unbroken whatever was there. Both get the fill parameters.
void splitLists(CMlineEdit& run, CMlineSegment* seg, const KdDbMline& copy, const double* from,
                const double* to, const double* normal) {
    const int split = seg->m_segment;
    for (int k = 0; k < seg->m_numElements; ++k) {
        run.mappingToSpecifyMongline(seg, k, nullptr);
        storeLineList(seg->m_mline, split, k,
                      beforeNewVertex(lineList(&copy, split, k), seg->m_mappedDistance));
        double offset = 0.0;
        run.Distance_PointToLine(seg->m_mappedPoint, from, to, normal, &offset, nullptr);
        storeLineList(seg->m_mline, split + 1, k, {offset, 0.0});
        const std::vector<double> area = areaList(&copy, split, k);
        storeAreaList(seg->m_mline, split, k, area);
        storeAreaList(seg->m_mline, split + 1, k, area);
    }
}

} // namespace

StepOutcome mledit::stepAddVertex(CMlineEdit& run) {
    run.add_OneVertex(&run.m_first);
    return StepOutcome::done;
}

StepOutcome mledit::stepDeleteVertex(CMlineEdit& run) {
    run.delete_OneVertex(&run.m_first, run.getDeleteVertexNumver(&run.m_first));
    return StepOutcome::done;
}

// The nearer end of the picked segment, measured on element 0; the start when they are equally
// near.
int CMlineEdit::getDeleteVertexNumver(CMlineSegment* seg) {
    mappingToSpecifyMongline(seg, 0, nullptr);
    const int end = segmentEnd(*seg, seg->m_mappedSegment);
    if (end < 0 || !hasElement(*seg, 0)) {
        return seg->m_mappedSegment;
    }
    const double distance = tklengine_distance(seg->m_mappedPoint, seg->m_ptList[0][end]);
    return distance < seg->m_mappedDistance ? end : seg->m_mappedSegment;
}

// Puts a vertex at the foot of the pick on the picked segment, unless an element passes some vertex
// right there.
void CMlineEdit::add_OneVertex(CMlineSegment* seg) {
    KdDbMline* const mline = seg->m_mline;
    mappingToSpecifyMongline(seg, 0, nullptr);
    const int start = seg->m_mappedSegment;
    const int end = segmentEnd(*seg, start);
    if (end < 0) {
        return;
    }
    const std::unique_ptr<KdDbMline> copy = copyOf(mline);
    double normal[3] = {0.0, 0.0, 0.0};
    GetNormal(mline, normal);
    VertexChain chain = VertexChain::of(copy.get());
    const Xyz from = chain.vertices[static_cast<std::size_t>(start)];
    const Xyz to = chain.vertices[static_cast<std::size_t>(end)];
    Xyz position{};
    Distance_PointToLine(seg->m_pickPoint, from.data(), to.data(), normal, nullptr,
                         position.data());
    if (isElementPosition(*seg, position.data())) {
        return;
    }

    int elements = 0;
    GetSegmentsSize(copy.get(), &elements);
    SetNumVertices(mline, seg->m_numVertices + 1);
    SetSegmentsSize(mline, elements);

    const EditFrame frame = frameOf(copy.get());
    const double axis = angleIn(frame, position.data(), to.data());
    Xyz axisDirection{};
    Xyz miterDirection{};
    frame.direction(axis, axisDirection.data());
    frame.direction(bisect(axis, angleIn(frame, position.data(), from.data())),
                    miterDirection.data());
    // After the last vertex when the closing segment was picked.
    const auto at = static_cast<std::ptrdiff_t>(start) + 1;
    chain.vertices.insert(chain.vertices.begin() + at, position);
    chain.axes.insert(chain.axes.begin() + at, axisDirection);
    chain.miters.insert(chain.miters.begin() + at, miterDirection);
    chain.store(mline);

    for (int old = 0; old < seg->m_numVertices; ++old) {
        if (old != seg->m_segment) {
            carryVertex(copy.get(), old, mline, old < seg->m_segment ? old : old + 1,
                        seg->m_numElements);
        }
    }
    splitLists(*this, seg, *copy, from.data(), to.data(), normal);
}

// Removes a vertex; an open chain keeps two, a closed one three. The record's count decreases
// whenever the vertex exists.
void CMlineEdit::delete_OneVertex(CMlineSegment* seg, int vertex) {
    ptListInitialize(seg->m_mline, seg->m_numVertices, seg->m_numElements, &seg->m_ptList,
                     &seg->m_ptListSize);
    const int count = seg->m_numVertices;
    if (vertex < 0 || vertex >= count) {
        return;
    }
    const bool enough = count > 3 || (count == 3 && !isClosed(*seg));
    const OpenStyle style(seg->m_mline);
    if (enough && seg->m_numElements > 0 && style.get() != nullptr &&
        count == seg->m_mline->numVertices()) {
        const std::unique_ptr<KdDbMline> copy = copyOf(seg->m_mline);
        double normal[3] = {0.0, 0.0, 0.0};
        GetNormal(copy.get(), normal);
        VertexRemoval(*this, *seg, vertex, *copy, endAngles(*style.get(), normal)).run();
    }
    --seg->m_numVertices;
}
