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
#include "vertexParameters.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>

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

// Removes vertices of an entity, one after the other at the same index D. Each removal turns the
// two vertices next to D and rewrites their lists; all others keep theirs. The entity is taken
// apart once and put together once, so that a removal costs the same in a chain of any length: what
// is removed stays in a gap that begins at D and that `column` steps over. A chain may have
// millions of vertices, so lists are copied only where they change.
class VertexRemoval {
public:
    // `seg` has its table of positions, which serves as working memory.
    VertexRemoval(CMlineEdit& edit, CMlineSegment& seg, int vertex, const EndAngles& ends)
        : m_edit(edit), m_mline(seg.m_mline), m_positions(seg.m_ptList), m_d(vertex),
          m_count(seg.m_numVertices), m_elements(seg.m_numElements), m_closed(isClosed(m_mline)),
          m_frame(frameOf(m_mline)), m_ends(ends), m_chain(VertexChain::of(m_mline)) {
        GetNormal(m_mline, m_normal);
    }

    // Before each removal there has to be a vertex D, and enough others.
    void run(int removals) {
        for (int i = 0; i < removals; ++i) {
            if (i > 0) {
                placeElements(m_around.previous);
                placeElements(m_around.next);
            }
            removeOne();
        }
        store();
    }

private:
    // Columns of the chain, the lists and the positions: those from D on lie after the gap.
    [[nodiscard]] std::size_t column(int vertex) const {
        return static_cast<std::size_t>(vertex < m_d ? vertex : vertex + m_gap);
    }
    [[nodiscard]] const double* position(int element, std::size_t column) const {
        return m_positions[element][column];
    }
    // Between element 0's positions, not the vertices.
    [[nodiscard]] double angle(std::size_t from, std::size_t to) const {
        return angleIn(m_frame, position(0, from), position(0, to));
    }
    void setDirections(std::size_t column, double axis, double miter) {
        m_frame.direction(axis, m_chain.axes[column].data());
        m_frame.direction(miter, m_chain.miters[column].data());
    }

    // The vertices around D, before it goes; nothing for one that doesn't exist.
    struct Around {
        std::optional<std::size_t> previous, beforePrevious, next, afterNext;
    };
    [[nodiscard]] Around around() const {
        const auto existing = [this](int vertex) {
            return vertex >= 0 && vertex < m_count ? std::optional(column(vertex)) : std::nullopt;
        };
        const auto [next, afterNext, previous, beforePrevious] =
            neighboursOf(m_d, m_count, m_closed);
        return {existing(previous), existing(beforePrevious), existing(next), existing(afterNext)};
    }

    void removeOne() {
        m_around = around();
        // On an open chain a new last vertex takes the start angle, as a new first one does.
        const bool isNextFree = !m_closed && (m_d == 0 || m_d == m_count - 2);
        m_firstBefore = column(0);
        ++m_gap;
        --m_count;
        m_rewritten.erase(static_cast<std::size_t>(m_d + m_gap) - 1);
        turnPrevious();
        turnNext(isNextFree);
        rewritePrevious();
        rewriteNext();
    }

    void turnPrevious() {
        const auto [previous, beforePrevious, next, afterNext] = m_around;
        if (!previous) {
            return;
        }
        const double axis = next ? angle(*previous, *next) : angle(*beforePrevious, *previous);
        // A free first vertex next to the gap takes the style's end angle. A new last vertex takes
        // none: its two directions are opposite, which makes a square end.
        const double miter =
            beforePrevious ? bisect(axis, angle(*previous, *beforePrevious)) : axis + m_ends.end;
        setDirections(*previous, axis, miter);
    }

    void turnNext(bool isFree) {
        const auto [previous, beforePrevious, next, afterNext] = m_around;
        if (!next) {
            return;
        }
        const double axis = afterNext ? angle(*next, *afterNext) : angle(*previous, *next);
        setDirections(*next, axis,
                      isFree ? axis + m_ends.start : bisect(axis, angle(*next, *previous)));
    }

    // Angle of a direction in the frame.
    [[nodiscard]] double angleOf(const Xyz& direction) const {
        const double origin[3] = {0.0, 0.0, 0.0};
        double inFrame[3];
        m_frame.directionToFrame(direction.data(), inFrame);
        return tklengine_angle(origin, inFrame);
    }

    // The offset of element k from the chain, always measured at the former vertex 0 and the new
    // first segment, whichever vertex went.
    double offsetOf(int k) {
        double distance = 0.0;
        m_edit.Distance_PointToLine(position(k, m_firstBefore), m_chain.vertices[column(0)].data(),
                                    m_chain.vertices[column(1)].data(), m_normal, &distance,
                                    nullptr);
        return distance;
    }

    // The segment over the gap is unbroken.
    void rewritePrevious() {
        if (!m_around.previous) {
            return;
        }
        const std::size_t at = *m_around.previous;
        const double turn = angleOf(m_chain.miters[at]) - angleOf(m_chain.axes[at]);
        VertexParameters& lists = listsOf(at);
        for (int k = 0; k < m_elements; ++k) {
            setLineList(lists, k, unbrokenList(offsetOf(k), turn));
        }
    }

    // The segment after the gap keeps its breaks, moved with its start.
    void rewriteNext() {
        if (!m_around.next) {
            return;
        }
        const std::size_t at = *m_around.next;
        const double turn = angleOf(m_chain.axes[at]) + kPi - angleOf(m_chain.miters[at]);
        VertexParameters& lists = listsOf(at);
        for (int k = 0; k < m_elements; ++k) {
            const VoVector<double>& values = std::as_const(lists).at(k).m_lineParams;
            std::vector<double> list(values.begin(), values.end());
            if (!list.empty()) {
                list[0] = alongMiter(offsetOf(k), turn);
                if (m_around.afterNext) {
                    followStart(list, at, k);
                }
            }
            setLineList(lists, k, list);
        }
    }

    // Element 0's position serves for every element, and a start that isn't 0 moves the offset
    // instead of itself.
    void followStart(std::vector<double>& list, std::size_t at, int k) const {
        const Xyz& miter = m_chain.miters[at];
        double start[3];
        for (std::size_t i = 0; i < 3; ++i) {
            start[i] = position(0, at)[i] + miter[i] * list[0];
        }
        double distance = tklengine_distance(start, position(k, at));
        if (!VoMath::isEqual(kdutAngle(start, position(k, at)),
                             kdutAngle(start, position(k, *m_around.afterNext)), kSameDirection)) {
            distance = -distance;
        }
        if (list.size() > 1 && !VoMath::isEqual(list[1], 0.0, kNoBreak)) {
            list[0] += distance;
        }
        for (std::size_t index = 2; index < list.size(); ++index) {
            list[index] += distance;
        }
    }

    // The lists of a vertex that was turned.
    [[nodiscard]] VertexParameters& listsOf(std::size_t column) {
        const auto [found, isNew] = m_rewritten.try_emplace(column);
        if (isNew) {
            found->second = elementLists(*m_mline, static_cast<int>(column), m_elements);
        }
        return found->second;
    }
    static void setLineList(VertexParameters& lists, int k, const std::vector<double>& list) {
        VoVector<double>& present = lists.at(k).m_lineParams;
        if (present.size() != list.size()) {
            present = VoVector<double>(static_cast<unsigned>(list.size()));
        }
        std::copy(list.begin(), list.end(), present.data());
    }

    // Where the elements pass a vertex that was turned.
    void placeElements(std::optional<std::size_t> column) {
        if (!column) {
            return;
        }
        const VertexParameters& lists = listsOf(*column);
        for (int k = 0; k < m_elements; ++k) {
            const VoVector<double>& list = lists.at(k).m_lineParams;
            const double offset = list.isEmpty() ? 0.0 : list.at(0);
            for (std::size_t i = 0; i < 3; ++i) {
                m_positions[k][*column][i] =
                    m_chain.vertices[*column][i] + offset * m_chain.miters[*column][i];
            }
        }
    }

    void store() {
        int elements = 0;
        GetSegmentsSize(m_mline, &elements);
        // Those that move up come from vertices that aren't written yet.
        for (int v = 0; v < m_count; ++v) {
            storeLists(v, elements);
        }
        SetNumVertices(m_mline, m_count);
        for (std::vector<Xyz>* const points : {&m_chain.vertices, &m_chain.axes, &m_chain.miters}) {
            points->erase(points->begin() + m_d, points->begin() + m_d + m_gap);
        }
        m_chain.store(m_mline);
    }

    void storeLists(int vertex, int elements) {
        const std::size_t from = column(vertex);
        const auto rewritten = m_rewritten.find(from);
        const VertexParameters lists =
            rewritten != m_rewritten.end()
                ? rewritten->second
                : elementLists(*m_mline, static_cast<int>(from), m_elements);
        VertexParameters records = vertexParameters(*m_mline, vertex);
        if (elements > 0) {
            records.resize(static_cast<unsigned>(elements));
        }
        for (int k = 0; k < std::min(static_cast<int>(records.size()), m_elements); ++k) {
            records.at(k) = lists.at(k);
        }
        storeVertexParameters(*m_mline, vertex, records);
    }

    CMlineEdit& m_edit;
    KdDbMline* m_mline;
    PointTable m_positions;
    int m_d;
    int m_count; // vertices that are left
    int m_gap = 0;
    int m_elements;
    bool m_closed;
    EditFrame m_frame;
    EndAngles m_ends;
    VertexChain m_chain;
    std::unordered_map<std::size_t, VertexParameters> m_rewritten; // by column
    double m_normal[3] = {0.0, 0.0, 0.0};
    Around m_around;               // of the last removal
    std::size_t m_firstBefore = 0; // the column that vertex 0 had before it
};

// Removes what can be removed of `times` vertices at one index: an open chain keeps two, a closed
// one three. The record's count decreases whenever the vertex exists.
void removeSome(CMlineEdit& run, CMlineSegment& seg, int vertex, int times) {
    run.ptListInitialize(seg.m_mline, seg.m_numVertices, seg.m_numElements, &seg.m_ptList,
                         &seg.m_ptListSize);
    const int count = seg.m_numVertices;
    if (vertex < 0 || vertex >= count) {
        return;
    }
    const int existing = std::min(times, count - vertex);
    const int removals = std::min(existing, count - (isClosed(seg) ? 3 : 2));
    const OpenStyle style(seg.m_mline);
    if (removals > 0 && seg.m_numElements > 0 && style.get() != nullptr &&
        count == seg.m_mline->numVertices()) {
        double normal[3] = {0.0, 0.0, 0.0};
        GetNormal(seg.m_mline, normal);
        VertexRemoval(run, seg, vertex, endAngles(*style.get(), normal)).run(removals);
    }
    seg.m_numVertices -= existing;
}

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
            storeElementLists(*mline, old < seg->m_segment ? old : old + 1,
                              elementLists(*copy, old, seg->m_numElements));
        }
    }
    splitLists(*this, seg, *copy, from.data(), to.data(), normal);
}

void CMlineEdit::delete_OneVertex(CMlineSegment* seg, int vertex) {
    removeSome(*this, *seg, vertex, 1);
}

// The first alone: it leaves as many lists at every vertex, as the others count on.
void mledit::removeVertices(CMlineEdit& run, CMlineSegment& seg, int vertex, int times) {
    if (times > 0) {
        removeSome(run, seg, vertex, 1);
    }
    if (times > 1) {
        removeSome(run, seg, vertex, times - 1);
    }
}
