#include "weldTool.h"

#include "CMlineEdit.h"
#include "KdDbMline.h"
#include "VoMath.h"
#include "comparisons.h"
#include "frames.h"
#include "lineMath.h"
#include "mapping.h"
#include "measure.h"
#include "parameterLists.h"
#include "pickMatching.h"
#include "vectorMath.h"
#include "weldList.h"

#include <utility>

using namespace mledit;

namespace {

constexpr double kSameLength = 1e-10; // drawing units

// A point on the line of a segment, clamped to the segment's ends, and its distance from the start.
struct ClampedPoint {
    double point[3];
    double distance;
};

// `isAtStart`: the point counts as the start. That comparison is relative to one of its points, and
// the callers' differ in which.
ClampedPoint clampToSegment(const double* point, bool isAtStart, const double* start,
                            const double* end) {
    ClampedPoint clamped{};
    const bool ahead = mlineAngleEqual(kdutAngle(start, point), kdutAngle(start, end), kHalfPi);
    if (!ahead || isAtStart) {
        copyPoint(start, clamped.point);
        return clamped;
    }
    copyPoint(point, clamped.point);
    clamped.distance = tklengine_distance(point, start);
    const double length = tklengine_distance(start, end);
    if (VoMath::isEqual(clamped.distance, length, kSameLength) || length < clamped.distance) {
        clamped.distance = length;
        copyPoint(end, clamped.point);
    }
    return clamped;
}

// Within the aperture of the element's line between its ends, gaps included.
bool matches(const double* pick, const double* start, const double* end, double radius,
             double* foot) {
    gx_ptlndist(pick, start, end, nullptr, foot);
    double pickOnDisplay[3] = {0.0, 0.0, 0.0};
    double footOnDisplay[3] = {0.0, 0.0, 0.0};
    tkl_wcs2dcs(pick, pickOnDisplay);
    tkl_wcs2dcs(foot, footOnDisplay);
    return mlineRealBetween(foot[0], start[0], end[0], radius) &&
           mlineRealBetween(foot[1], start[1], end[1], radius) &&
           radius > kdutDistance(pickOnDisplay, footOnDisplay);
}

void takeWeldPick(CMlineSegment& seg, const double* pick, double radius) {
    searchPick(seg, [&seg, pick, radius](int element, int segment, int endVertex) {
        const double* const start = seg.m_ptList[element][segment];
        const double* const end = seg.m_ptList[element][endVertex];
        double foot[3];
        if (!matches(pick, start, end, radius, foot)) {
            return false;
        }
        const ClampedPoint clamped =
            clampToSegment(foot, gx_pt_equal(start, foot) != 0, start, end);
        seg.m_segment = segment;
        seg.m_element = element;
        copyPoint(foot, seg.m_pickPoint);
        copyPoint(clamped.point, seg.m_weldPoint);
        seg.m_pickDistance = clamped.distance;
        return true;
    });
}

bool isAfter(const CMlineSegment& a, const CMlineSegment& b) {
    return a.m_mappedSegment > b.m_mappedSegment ||
           (a.m_mappedSegment == b.m_mappedSegment && a.m_mappedDistance > b.m_mappedDistance);
}

// Whether the mapped point is the mapped element's position at a vertex.
bool isAtVertex(const CMlineSegment& seg, int vertex) {
    return vertex >= 0 && vertex < seg.m_numVertices && hasElement(seg, seg.m_mappedElement) &&
           gx_pt_equal(seg.m_mappedPoint, seg.m_ptList[seg.m_mappedElement][vertex]) != 0;
}

// An end on a vertex belongs to the segment that lies between the ends. The lower end moves in the
// lower half of the chain alone. The records keep the new segments for the elements mapped next.
void moveOffVertices(CMlineSegment& lower, CMlineSegment& upper) {
    if (lower.m_mappedSegment + 1 < lower.m_numVertices / 2 &&
        isAtVertex(lower, lower.m_mappedSegment + 1)) {
        ++lower.m_mappedSegment;
        lower.m_mappedDistance = 0.0;
    }
    if (upper.m_mappedSegment > 0 && isAtVertex(upper, upper.m_mappedSegment)) {
        --upper.m_mappedSegment;
        upper.m_mappedDistance = tklengine_distance(
            upper.m_ptList[upper.m_mappedElement][upper.m_mappedSegment], upper.m_mappedPoint);
    }
}

} // namespace

StepOutcome mledit::stepWeldAll(CMlineEdit& run) {
    for (int element = 0; element < run.m_first.m_numElements; ++element) {
        run.mappingToSpecifyMonglineForWeldAll(&run.m_first, element, nullptr);
        run.mappingToSpecifyMonglineForWeldAll(&run.m_second, element, nullptr);
        run.Weld_Mongline(&run.m_first, &run.m_second);
    }
    return StepOutcome::done;
}

void CMlineEdit::mlineEditInitializeForWeldAll(CMlineSegment* seg, long* name,
                                               CMlineSegment* other) {
    if (seg == nullptr) {
        return;
    }
    double pick[3];
    copyPoint(m_pickedPoint, pick);
    uc2wc(m_pickedPoint, pick, false);
    openPicked(*seg, name, other);
    if (seg->m_mline == nullptr) {
        return; // the name stays: a second pick of the same entity is accepted and does nothing
    }
    fillTable(*this, *seg);
    takeWeldPick(*seg, pick, m_pickRadius);
    mapToPick(*seg, seg->m_weldPoint);
    name[0] = 0;
    name[1] = 0;
}

void CMlineEdit::mappingToSpecifyMonglineForWeldAll(CMlineSegment* seg, int element, double* out) {
    if (seg == nullptr) {
        return;
    }
    if (element == seg->m_element) {
        mapToPick(*seg, seg->m_weldPoint);
        return;
    }
    PerpendicularFoot foot{};
    if (!footOnElement(*seg, element, foot)) {
        return;
    }
    if (element == kChain) {
        copyPoint(foot.point, out);
        return;
    }
    const bool isAtStart = gx_pt_equal(foot.point, foot.start) != 0;
    const ClampedPoint clamped = clampToSegment(foot.point, isAtStart, foot.start, foot.end);
    copyPoint(clamped.point, seg->m_mappedPoint);
    seg->m_mappedElement = element;
    seg->m_mappedDistance = clamped.distance;
}

bool IsPositionCutPt(const CMlineSegment* seg, bool lowerEnd, double tolerance) {
    if (seg == nullptr || seg->m_mline == nullptr) {
        return false;
    }
    return liesInGap(lineList(seg->m_mline, seg->m_mappedSegment, seg->m_mappedElement),
                     seg->m_mappedDistance, tolerance) == lowerEnd;
}

void CMlineEdit::Weld_Mongline(CMlineSegment* first, CMlineSegment* second) {
    if (first == nullptr || second == nullptr || first->m_mline == nullptr ||
        second->m_mline == nullptr ||
        gx_pt_equal(first->m_mappedPoint, second->m_mappedPoint) != 0) {
        return;
    }
    // By number alone, on a closed multiline too: a weld never runs across the closing vertex.
    CMlineSegment* lower = first;
    CMlineSegment* upper = second;
    if (isAfter(*lower, *upper)) {
        std::swap(lower, upper);
    }
    moveOffVertices(*lower, *upper);

    double aperture = 0.0;
    set_SpaceBetween(&aperture);
    const WeldEnd from{lower->m_mappedDistance, IsPositionCutPt(lower, true, aperture)};
    const WeldEnd to{upper->m_mappedDistance, IsPositionCutPt(upper, false, aperture)};
    const auto rewrite = [this, lower](int vertex, auto weld) {
        setRealVector(lower->m_mline, vertex, lower->m_mappedElement);
        m_breaks = weld(std::move(m_breaks));
        storeLineList(lower->m_mline, vertex, lower->m_mappedElement, m_breaks);
    };
    if (lower->m_mappedSegment == upper->m_mappedSegment) {
        rewrite(lower->m_mappedSegment,
                [&](BreakList list) { return weldWithin(std::move(list), from, to, aperture); });
        return;
    }
    rewrite(lower->m_mappedSegment,
            [&](BreakList list) { return weldToSegmentEnd(std::move(list), from, aperture); });
    rewrite(upper->m_mappedSegment,
            [&](BreakList list) { return weldFromSegmentStart(std::move(list), to, aperture); });
    for (int v = lower->m_mappedSegment + 1; v < upper->m_mappedSegment; ++v) {
        rewrite(v, weldWhole);
    }
}
