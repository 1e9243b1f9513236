#include "cutTools.h"

#include "CMlineEdit.h"
#include "KdDbMline.h"
#include "breakList.h"
#include "comparisons.h"
#include "mlineAccessors.h"
#include "parameterLists.h"
#include "vectorMath.h"

#include <array>
#include <utility>

using namespace mledit;

namespace {

using Point = std::array<double, 3>;

// The element's positions as the entity has them now: earlier cuts and moved vertices don't
// matter. Only the few that a cut needs are worked out.
class ElementLine {
public:
    ElementLine(const KdDbMline& mline, int element)
        : m_mline(mline), m_element(element), m_count(mline.numVertices()) {}

    [[nodiscard]] int numVertices() const { return m_count; }

    [[nodiscard]] Point at(int vertex) const {
        const KdGePoint3d position = m_mline.vertexAt(vertex);
        const KdGeVector3d miter = m_mline.miterAt(vertex);
        const double offset = elementOffset(m_mline, vertex, m_element);
        return {position.x + offset * miter.x, position.y + offset * miter.y,
                position.z + offset * miter.z};
    }
    [[nodiscard]] double distance(int vertex, const Point& point) const {
        return tklengine_distance(at(vertex).data(), point.data());
    }
    // Indices aren't wrapped: no point lies on a vertex that doesn't exist.
    [[nodiscard]] bool isAt(const Point& point, int vertex) const {
        return vertex >= 0 && vertex < m_count && gx_pt_equal(point.data(), at(vertex).data()) != 0;
    }
    // Both ends of the segment lie on one side of a point that isn't on it.
    [[nodiscard]] bool isOff(const Point& point, int segment) const {
        const Point start = at(segment);
        const Point end = at((segment + 1) % m_count);
        return CMlineEdit::PositionConnection(point.data(), start.data()) ==
               CMlineEdit::PositionConnection(point.data(), end.data());
    }

private:
    const KdDbMline& m_mline;
    int m_element;
    int m_count;
};

struct GapEnd {
    Point point;
    int segment;
    double distance; // from the element's position at the segment's start

    [[nodiscard]] bool isAfter(const GapEnd& other) const {
        return segment > other.segment || (segment == other.segment && distance > other.distance);
    }
};

GapEnd gapEnd(const ElementLine& line, const double* point, int segment) {
    const Point at = {point[0], point[1], point[2]};
    return {at, segment, line.distance(segment, at)};
}

// A start on a segment's end belongs to the next one, an end on a segment's start to the one
// before.
void moveOffVertices(const ElementLine& line, GapEnd& start, GapEnd& end) {
    if (line.isAt(start.point, start.segment + 1)) {
        ++start.segment;
        start.distance = 0.0;
    }
    if (end.segment > 0 && line.isAt(end.point, end.segment)) {
        --end.segment;
        end.distance = line.distance(end.segment, end.point);
    }
}

void cutBetweenPicks(CMlineEdit& run) {
    CMlineSegment& first = run.m_first;
    const CMlineSegment& second = run.m_second;
    run.Cut_Mongline(&first, first.m_mappedElement, first.m_mappedPoint, first.m_mappedSegment,
                     second.m_mappedPoint, second.m_mappedSegment);
}

} // namespace

StepOutcome mledit::stepCutSingle(CMlineEdit& run) {
    if (run.m_first.m_element != run.m_second.m_element) {
        run.mappingToSpecifyMongline(&run.m_second, run.m_first.m_element, nullptr);
    }
    cutBetweenPicks(run);
    return StepOutcome::done;
}

StepOutcome mledit::stepCutAll(CMlineEdit& run) {
    for (int k = 0; k < run.m_first.m_numElements; ++k) {
        run.mappingToSpecifyMongline(&run.m_first, k, nullptr);
        run.mappingToSpecifyMongline(&run.m_second, k, nullptr);
        cutBetweenPicks(run);
    }
    return StepOutcome::done;
}

void CMlineEdit::setRealVector(KdDbMline* mline, int vertex, int element) {
    readLineList(mline, vertex, element, m_breaks);
}

// What becomes of the lists is in breakList.h; here is which lists a gap touches and whether its
// ends lie on the element at all.
void CMlineEdit::Cut_Mongline(CMlineSegment* seg, int element, const double* startPoint,
                              int startSegment, const double* endPoint, int endSegment) {
    KdDbMline* const mline = seg->m_mline;
    int elements = 0;
    GetSegmentsSize(mline, &elements);
    if (gx_pt_equal(startPoint, endPoint) != 0 || element < 0 || element >= elements) {
        return;
    }
    const ElementLine line(*mline, element);
    const int count = line.numVertices();
    if (startSegment < 0 || startSegment >= count || endSegment < 0 || endSegment >= count) {
        return;
    }
    GapEnd start = gapEnd(line, startPoint, startSegment);
    GapEnd end = gapEnd(line, endPoint, endSegment);
    // By index alone, on a closed multiline too: a gap never runs across the closing vertex.
    if (start.isAfter(end)) {
        std::swap(start, end);
    }
    moveOffVertices(line, start, end);
    if (start.segment > end.segment || line.isOff(start.point, start.segment) ||
        line.isOff(end.point, end.segment)) {
        return;
    }

    const auto rewrite = [this, mline, element](int vertex, auto cut) {
        setRealVector(mline, vertex, element);
        m_breaks = cut(std::move(m_breaks));
        storeLineList(mline, vertex, element, m_breaks);
    };
    if (start.segment == end.segment) {
        // The gap's end decides for both of its ends.
        const bool insertsEnds = !line.isAt(end.point, end.segment);
        rewrite(start.segment, [&start, &end, insertsEnds](BreakList list) {
            return cutWithin(std::move(list), start.distance, end.distance, insertsEnds);
        });
        return;
    }
    const bool insertsStart = !line.isAt(start.point, start.segment);
    const bool insertsEnd = !line.isAt(end.point, end.segment + 1);
    rewrite(start.segment, [&start, insertsStart](BreakList list) {
        return cutToSegmentEnd(std::move(list), start.distance, insertsStart);
    });
    rewrite(end.segment, [&end, insertsEnd](BreakList list) {
        return cutFromSegmentStart(std::move(list), end.distance, insertsEnd);
    });
    for (int v = start.segment + 1; v < end.segment; ++v) {
        rewrite(v, cutWhole);
    }
}
