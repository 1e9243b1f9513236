#pragma once

#include "CMlineSegment.h"
#include "segments.h"

// Tries the elements of all segments with `takes(element, segment, end vertex)` till one says yes:
// the lowest segment first, in it the lowest element; the nearest doesn't win, and the closing
// segment comes last.
template <class Takes>
void searchPick(const CMlineSegment& seg, Takes&& takes) {
    const auto takesSegment = [&](int segment, int end) {
        for (int e = 0; e < seg.m_numElements; ++e) {
            if (takes(e, segment, end)) {
                return true;
            }
        }
        return false;
    };
    const int last = seg.m_numVertices - 1;
    for (int i = 0; i < last; ++i) {
        if (takesSegment(i, i + 1)) {
            return;
        }
    }
    if (isClosed(seg) && last >= 0) {
        takesSegment(last, 0);
    }
}
