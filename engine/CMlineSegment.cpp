#include "CMlineSegment.h"

#include "mlineAccessors.h"

namespace mledit {

bool isClosed(const CMlineSegment& seg) {
    return isClosed(seg.m_mline);
}

int segmentEnd(const CMlineSegment& seg, int segment) {
    if (segment < 0 || segment >= seg.m_numVertices || seg.m_numVertices < 2) {
        return -1;
    }
    if (segment < seg.m_numVertices - 1) {
        return segment + 1;
    }
    return isClosed(seg) ? 0 : -1;
}

bool hasElement(const CMlineSegment& seg, int element) {
    return element >= 0 && element < seg.m_numElements && element < seg.m_ptListSize;
}

bool isUsable(const CMlineSegment& seg) {
    return seg.m_mline != nullptr && hasElement(seg, seg.m_element) &&
           segmentEnd(seg, seg.m_segment) >= 0;
}

} // namespace mledit
