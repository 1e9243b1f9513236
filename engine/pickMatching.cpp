#include "pickMatching.h"

#include "CMlineEdit.h"
#include "KdDbMline.h"
#include "RvexView.h"
#include "frames.h"
#include "kddbObjects.h"
#include "lineMath.h"
#include "mapping.h"
#include "measure.h"
#include "mlineAccessors.h"
#include "parameterLists.h"
#include "systemVariables.h"
#include "vectorMath.h"
#include "vertexSnapshot.h"

#include <algorithm>
#include <memory>

using namespace mledit;

namespace {

// Between the ends, the start counted in and the end out; by x or, failing that, by y.
bool isInSpan(const double* foot, const double* start, const double* end) {
    return (foot[0] >= start[0] && foot[0] < end[0]) || (foot[0] > end[0] && foot[0] <= start[0]) ||
           (foot[1] >= start[1] && foot[1] < end[1]) || (foot[1] > end[1] && foot[1] <= start[1]);
}

// Whether the element is drawn at that distance. The offset at index 0 takes part in the search, so
// an element with an offset above the distance counts as not drawn there.
bool isDrawnAt(const std::vector<double>& list, double distance) {
    const auto next = std::find_if(list.begin(), list.end(),
                                   [distance](double entry) { return entry > distance; });
    const auto last = (next - list.begin()) - 1;
    return last % 2 == 1;
}

class PickMatcher {
public:
    PickMatcher(const CMlineSegment& seg, const double* pick, double radius)
        : m_seg(seg), m_pick(pick), m_radius(radius) {
        tkl_wcs2dcs(m_pick, m_pickOnDisplay);
    }

    // Whether the pick lies on an element in the segment from vertex `from` to vertex `to`. `foot`
    // is the point on its line.
    [[nodiscard]] bool matches(int element, int from, int to, double* foot) const {
        const double* const start = m_seg.m_ptList[element][from];
        const double* const end = m_seg.m_ptList[element][to];
        gx_ptlndist(m_pick, start, end, nullptr, foot);
        // The cheap tests first: only what passes them costs a read of the entity.
        if (!isInSpan(foot, start, end)) {
            return false;
        }
        double footOnDisplay[3] = {0.0, 0.0, 0.0};
        tkl_wcs2dcs(foot, footOnDisplay);
        return m_radius > kdutDistance(m_pickOnDisplay, footOnDisplay) &&
               isDrawnAt(lineList(m_seg.m_mline, from, element), kdutDistance(start, foot));
    }

private:
    const CMlineSegment& m_seg;
    const double* m_pick;
    double m_radius;
    double m_pickOnDisplay[3] = {0.0, 0.0, 0.0};
};

// Without a match the record keeps what it had.
void takePick(CMlineSegment& seg, const double* pick, double radius) {
    const PickMatcher matcher(seg, pick, radius);
    searchPick(seg, [&seg, &matcher](int element, int segment, int end) {
        double foot[3];
        if (!matcher.matches(element, segment, end, foot)) {
            return false;
        }
        seg.m_segment = segment;
        seg.m_element = element;
        copyPoint(foot, seg.m_pickPoint);
        seg.m_pickDistance = kdutDistance(seg.m_pickPoint, seg.m_ptList[element][segment]);
        return true;
    });
}

} // namespace

void mledit::openPicked(CMlineSegment& seg, const long* name, const CMlineSegment* other) {
    seg.m_name[0] = name[0];
    seg.m_name[1] = name[1];
    if (other != nullptr && isSameEntity(name, other->m_name)) {
        seg.m_mline = other->m_mline;
        return;
    }
    KdDbObjectId id;
    kddbGetObjectId(id, name);
    kddbOpenObject(seg.m_mline, id, kForRead);
}

void mledit::fillTable(CMlineEdit& run, CMlineSegment& seg) {
    // An entity that didn't open leaves an empty record.
    seg.m_numVertices = seg.m_mline != nullptr ? seg.m_mline->numVertices() : 0;
    seg.m_numElements = 0;
    GetSegmentsSize(seg.m_mline, &seg.m_numElements);
    run.ptListInitialize(seg.m_mline, seg.m_numVertices, seg.m_numElements, &seg.m_ptList,
                         &seg.m_ptListSize);
    run.set_SpaceBetween(&run.m_pickRadius);
}

void CMlineEdit::mlineEditInitialize(CMlineSegment* seg, long* name, CMlineSegment* other) {
    double pick[3];
    copyPoint(m_pickedPoint, pick);
    uc2wc(m_pickedPoint, pick, false);
    openPicked(*seg, name, other);
    fillTable(*this, *seg);
    takePick(*seg, pick, m_pickRadius);
    mapToPick(*seg, seg->m_pickPoint);
    name[0] = 0;
    name[1] = 0;
}

void CMlineEdit::ptListInitialize(KdDbMline* mline, int numVertices, int numElements,
                                  PointTable* list, int* size) {
    freePointTable(*list, *size);
    *list = newPointTable(numElements, numVertices);
    *size = std::max(numElements, 0);

    const std::unique_ptr<db_mlvertlink[]> snapshot(ret_vert(mline));
    int present = 0;
    GetSegmentsSize(mline, &present);
    const int elements = std::min(present, numElements);
    const int vertices = snapshot != nullptr ? std::min(mline->numVertices(), numVertices) : 0;
    for (int v = 0; v < vertices; ++v) {
        const db_mlvertlink& vertex = snapshot[static_cast<std::size_t>(v)];
        for (int e = 0; e < elements; ++e) {
            const db_mlelemlink& element = vertex.elem[e];
            const double offset = element.numLine > 0 ? element.lineParams[0] : 0.0;
            for (int i = 0; i < 3; ++i) {
                (*list)[e][v][i] = vertex.pt[i] + offset * vertex.miter[i];
            }
        }
    }
}

void CMlineEdit::set_SpaceBetween(double* radius) {
    // The circle reaches the corners of the square pick box.
    constexpr double kDiagonal = 1.4142135623730951;
    resbuf pickBox;
    kdedGetVar(L"PICKBOX", &pickBox);
    const RvexView* const view = activeView();
    if (view == nullptr) {
        return;
    }
    double pixel = 1.0;
    view->pixelsToDisplayUnits(pixel, nullptr, nullptr, 1);
    *radius = pickBox.resval.rint * pixel * kDiagonal;
}
