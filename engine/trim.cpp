// Closing off one end of an element, and the flags that go with it.

#include "CMlineEdit.h"
#include "KdDbMline.h"
#include "mlineAccessors.h"
#include "parameterLists.h"
#include "trimList.h"
#include "vectorMath.h"

using namespace mledit;

// Rewrites one element's list so that it is drawn on one side of a point only. The record's table
// of positions is rebuilt first, for the vertices may just have moved.
void CMlineEdit::change41GroupNumber(CMlineSegment* seg, int element, int vertex,
                                     const double* point, bool keepStart) {
    ptListInitialize(seg->m_mline, seg->m_numVertices, seg->m_numElements, &seg->m_ptList,
                     &seg->m_ptListSize);
    if (element < 0 || element >= seg->m_numElements || vertex < 0 ||
        vertex + 1 >= seg->m_numVertices) {
        return;
    }
    const double* const start = seg->m_ptList[element][vertex];
    const double* const end = seg->m_ptList[element][vertex + 1];
    const double distance = tklengine_distance(start, point);
    const bool ahead = PositionConnection(start, point) == PositionConnection(start, end);

    BreakList list = lineList(seg->m_mline, vertex, element);
    if (keepStart) {
        list = keepUpTo(std::move(list), distance, ahead);
    } else {
        const bool beyond = PositionConnection(end, point) != PositionConnection(end, start);
        list = keepFrom(std::move(list), distance,
                        beyond  ? TrimPosition::beyondEnd
                        : ahead ? TrimPosition::within
                                : TrimPosition::beforeStart);
    }
    storeLineList(seg->m_mline, vertex, element, list);
}

// Sets (1), clears (0) or leaves (any other value) the flags of the entity. Clearing keeps the four
// lowest bits at most.
int CMlineEdit::change71GroupNumber(KdDbMline* mline, int endCaps, int startCaps, int closed,
                                    int hasVertex) {
    int flags = 0;
    GetFlag(mline, &flags);
    const auto apply = [&flags](int wish, int bit) {
        if (wish == 1) {
            flags |= bit;
        } else if (wish == 0) {
            flags &= 15 & ~bit;
        }
    };
    apply(hasVertex, kFlagHasVertex);
    apply(closed, kFlagClosed);
    apply(startCaps, kFlagNoStartCaps);
    apply(endCaps, kFlagNoEndCaps);
    return SetFlag(mline, flags);
}
