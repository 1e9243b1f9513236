#pragma once

#include "CMlineSegment.h"

class CMlineEdit;

// From a pick to the element and segment that it means.

namespace mledit {

// Enters name and entity in the record; the entity is opened for read, or shared with `other` when
// that record holds it already.
void openPicked(CMlineSegment& seg, const long* name, const CMlineSegment* other);

// Fills the record's counts and table from the open entity, and the run's aperture.
void fillTable(CMlineEdit& run, CMlineSegment& seg);

// Tries the elements of all segments with `takes(element, segment, end vertex)` until one returns
// true: the lowest segment first, in it the lowest element; the nearest doesn't win, and the
// closing segment comes last.
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

} // namespace mledit
