#include "mapping.h"

#include "CMlineEdit.h"
#include "KdDbMline.h"
#include "VoMath.h"
#include "lineMath.h"
#include "mlineAccessors.h"
#include "vectorMath.h"

#include <cmath>

using namespace mledit;

namespace {

// The crossing clamped to the segment from a to b, by x unless the ends have one x.
const double* clampToSegment(const double* crossing, const double* a, const double* b) {
    const int k = a[0] < b[0] || a[0] > b[0] ? 0 : 1;
    if (a[k] < b[k]) {
        return crossing[k] < a[k] ? a : crossing[k] > b[k] ? b : crossing;
    }
    return crossing[k] > a[k] ? a : crossing[k] < b[k] ? b : crossing;
}

double distanceFromLine(const double* point, const double* a, const double* b) {
    double distance = 0.0;
    gx_ptlndist(point, a, b, &distance, nullptr);
    return distance;
}

} // namespace

bool mledit::footOnElement(const CMlineSegment& seg, int element, PerpendicularFoot& foot) {
    const int start = seg.m_segment;
    const int end = segmentEnd(seg, start);
    if (seg.m_mline == nullptr || end < 0 || !hasElement(seg, seg.m_element) ||
        (element != kChain && !hasElement(seg, element))) {
        return false;
    }
    if (element == kChain) {
        const KdGePoint3d a = seg.m_mline->vertexAt(start);
        const KdGePoint3d b = seg.m_mline->vertexAt(end);
        foot = {{a.x, a.y, a.z}, {b.x, b.y, b.z}, {}};
    } else {
        copyPoint(seg.m_ptList[element][start], foot.start);
        copyPoint(seg.m_ptList[element][end], foot.end);
    }
    // A line through the pick, perpendicular to the segment in plan; only its direction counts.
    constexpr double kLength = 10.0;
    const double* const pick = seg.m_pickPoint;
    const double angle = tklengine_angle(pick, seg.m_ptList[seg.m_element][start]);
    const double across[3] = {pick[0] + std::sin(angle) * kLength,
                              pick[1] - std::cos(angle) * kLength, pick[2]};
    copyPoint(pick, foot.point);
    gx_linexline(pick, across, foot.start, foot.end, foot.point);
    return true;
}

void mledit::mapToPick(CMlineSegment& seg, const double* point) {
    copyPoint(point, seg.m_mappedPoint);
    seg.m_mappedDistance = seg.m_pickDistance;
    seg.m_mappedSegment = seg.m_segment;
    seg.m_mappedElement = seg.m_element;
}

void CMlineEdit::mappingToSpecifyMongline(CMlineSegment* seg, int element, double* out) {
    if (element == seg->m_element) {
        mapToPick(*seg, seg->m_pickPoint);
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
    copyPoint(clampToSegment(foot.point, foot.start, foot.end), seg->m_mappedPoint);
    seg->m_mappedElement = element;
    seg->m_mappedDistance = tklengine_distance(seg->m_mappedPoint, foot.start);
}

void CMlineEdit::correctMapping(CMlineSegment* seg) {
    if (seg->m_mline == nullptr) {
        return;
    }
    seg->m_numVertices = seg->m_mline->numVertices();
    GetSegmentsSize(seg->m_mline, &seg->m_numElements);
    ptListInitialize(seg->m_mline, seg->m_numVertices, seg->m_numElements, &seg->m_ptList,
                     &seg->m_ptListSize);
    if (!hasElement(*seg, seg->m_mappedElement)) {
        return;
    }
    const double* const point = seg->m_mappedPoint;
    const PointRow row = seg->m_ptList[seg->m_mappedElement];
    const int last = seg->m_numVertices - 1;
    for (int i = 0; i < last; ++i) {
        if (VoMath::isEqual(distanceFromLine(point, row[i], row[i + 1]), 0.0, m_pickRadius)) {
            seg->m_mappedSegment = i;
            return;
        }
    }
    // The closing segment asks for a distance of exactly the aperture, which in practice keeps it
    // out.
    if (last >= 0 && isClosed(*seg) &&
        VoMath::isEqual(distanceFromLine(point, row[last], row[0]), m_pickRadius, 0.0)) {
        seg->m_mappedSegment = last;
    }
}

int CMlineEdit::PositionConnection(const double* a, const double* b) {
    constexpr double kSameCoordinate = 1e-10;
    const bool sameX = VoMath::isEqual(a[0], b[0], kSameCoordinate);
    const bool sameY = VoMath::isEqual(a[1], b[1], kSameCoordinate);
    if (std::isnan(a[0]) || std::isnan(b[0]) || std::isnan(a[1]) || std::isnan(b[1])) {
        return -5001;
    }
    if (sameX && sameY) {
        return 0;
    }
    if (sameX) {
        return a[1] < b[1] ? 3 : -3;
    }
    if (sameY) {
        return a[0] < b[0] ? 1 : -1;
    }
    if (a[0] < b[0]) {
        return a[1] < b[1] ? 2 : -4;
    }
    return a[1] < b[1] ? 4 : -2;
}
