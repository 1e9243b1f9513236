// The corner joint: two multilines are cut back or drawn out to the crossing of their picked
// segments and keep the sides on which the picks lie. One multiline picked twice is joined with
// itself, between its first and last segment: the loop is either cut out or closed.

#include "CMlineEdit.h"
#include "cornerPlan.h"
#include "segments.h"

#include <cstdlib>

namespace {

// Joining one multiline takes its first and last segment, whichever two were picked.
void takeOuterSegments(CMlineSegment& first, CMlineSegment& second) {
    const bool inOrder = first.m_segment <= second.m_segment;
    first.m_segment = inOrder ? 0 : first.m_numVertices - 2;
    second.m_segment = inOrder ? second.m_numVertices - 2 : 0;
}

// Where the picks lie doesn't count then: the middle of the segment stands for each.
void mapToMiddle(CMlineSegment& seg) {
    const double* const start = seg.m_ptList[0][seg.m_segment];
    const double* const end = seg.m_ptList[0][seg.m_segment + 1];
    for (int i = 0; i < 3; ++i) {
        seg.m_mappedPoint[i] = (start[i] + end[i]) / 2.0;
    }
}

} // namespace

StepOutcome CMlineEdit::stepCornerJoint() {
    const bool isOne = isSameEntity(m_first.m_name, m_second.m_name);
    if (isOne) {
        if (std::abs(m_first.m_segment - m_second.m_segment) == 1) {
            return StepOutcome::failedSilently;
        }
        takeOuterSegments(m_first, m_second);
    }
    const int s = m_first.m_segment;
    const int t = m_second.m_segment;
    if (!set_PTCrossing(&m_first, s, &m_second, t, &m_crossing, &m_crossingSize)) {
        return StepOutcome::noCrossing;
    }
    double corner[3] = {0.0, 0.0, 0.0};
    if (!getXPoint(m_first.m_mline, s, m_second.m_mline, t, corner)) {
        return StepOutcome::noCrossing;
    }
    mappingToSpecifyMongline(&m_first, 0, nullptr);
    mappingToSpecifyMongline(&m_second, 0, nullptr);
    if (isOne) {
        mapToMiddle(m_first);
        mapToMiddle(m_second);
    }
    const bool firstKeepsStart = crossingLiesAhead(m_first);
    const bool secondKeepsStart = crossingLiesAhead(m_second);
    if (isOne) {
        return joinWithItself(corner, firstKeepsStart, secondKeepsStart);
    }
    joinTwo(corner, firstKeepsStart, secondKeepsStart);
    return StepOutcome::done;
}

void CMlineEdit::joinTwo(const double* corner, bool firstKeepsStart, bool secondKeepsStart) {
    removeBeyondCorner(m_first, firstKeepsStart);
    removeBeyondCorner(m_second, secondKeepsStart);
    moveEnd(m_first, firstKeepsStart ? m_first.m_segment + 1 : 0, corner);
    moveEnd(m_second, secondKeepsStart ? m_second.m_segment + 1 : 0, corner);

    const bool oppositeEnds = firstKeepsStart != secondKeepsStart;
    trimToCorner(m_first, m_second.m_numElements, oppositeEnds, firstKeepsStart, false);
    trimToCorner(m_second, m_first.m_numElements, oppositeEnds, secondKeepsStart, true);
}

// Removal at the head leaves m_segment as it was: the segment in question is then segment 0.
void CMlineEdit::removeBeyondCorner(CMlineSegment& seg, bool keepStart) {
    if (keepStart) {
        while (seg.m_numVertices > seg.m_segment + 2) {
            delete_OneVertex(&seg, seg.m_segment + 2);
        }
    } else {
        for (int i = 0; i < seg.m_segment; ++i) {
            delete_OneVertex(&seg, 0);
        }
    }
}

void CMlineEdit::moveEnd(CMlineSegment& seg, int vertex, const double* place) {
    ptListInitialize(seg.m_mline, seg.m_numVertices, seg.m_numElements, &seg.m_ptList,
                     &seg.m_ptListSize);
    changePTPosition(seg.m_mline, vertex, place, seg.m_ptList);
}

// Suppresses the cap at the joined end and stops each element at its corner.
void CMlineEdit::trimToCorner(CMlineSegment& seg, int otherElements, bool oppositeEnds,
                              bool keepStart, bool isSecond) {
    change71GroupNumber(seg.m_mline, keepStart ? 1 : -1, keepStart ? -1 : 1, -1, 1);
    for (int element = 0; element < seg.m_numElements; ++element) {
        const int partner =
            cornerPartner(element, seg.m_numElements, otherElements, oppositeEnds, keepStart);
        if (isSecond ? !isCrossingSolved(partner, element) : !isCrossingSolved(element, partner)) {
            continue;
        }
        double corner[3] = {0.0, 0.0, 0.0};
        getCornerPoint(element, seg.m_numElements, otherElements, corner, oppositeEnds, keepStart,
                       isSecond);
        change41GroupNumber(&seg, element, keepStart ? seg.m_segment : 0, corner, keepStart);
    }
}

// The first record is on the earlier segment or the later one. The earlier one keeping its start
// and the later one its end means that the loop between them goes; the other way round it is
// closed at the corner.
StepOutcome CMlineEdit::joinWithItself(const double* corner, bool firstKeepsStart,
                                       bool secondKeepsStart) {
    const bool inOrder = m_first.m_segment < m_second.m_segment;
    if (firstKeepsStart == secondKeepsStart || m_first.m_segment == m_second.m_segment) {
        return StepOutcome::failedSilently;
    }
    CMlineSegment& earlier = inOrder ? m_first : m_second;
    CMlineSegment& later = inOrder ? m_second : m_first;
    const bool earlierKeepsStart = inOrder ? firstKeepsStart : secondKeepsStart;
    if (earlierKeepsStart) {
        cutLoopOut(earlier, later.m_segment, corner);
    } else {
        closeLoop(later, earlier.m_segment, corner);
    }
    return StepOutcome::done;
}

void CMlineEdit::cutLoopOut(CMlineSegment& seg, int laterSegment, const double* corner) {
    const int start = seg.m_segment;
    for (int i = 0; i < laterSegment - start - 1; ++i) {
        delete_OneVertex(&seg, start + 2);
    }
    moveEnd(seg, start + 1, corner);
}

// Both ends move to the corner, and each element stops at its own image.
void CMlineEdit::closeLoop(CMlineSegment& seg, int earlierSegment, const double* corner) {
    const int last = seg.m_segment;
    const int behind = seg.m_numVertices - last - 2;
    for (int i = 0; i < behind; ++i) {
        delete_OneVertex(&seg, last + 2);
    }
    moveEnd(seg, last + 1, corner);
    for (int i = 0; i < earlierSegment; ++i) {
        delete_OneVertex(&seg, 0);
    }
    moveEnd(seg, 0, corner);
    change71GroupNumber(seg.m_mline, 1, 1, -1, 1);
    for (int k = 0; k < seg.m_numElements; ++k) {
        if (isCrossingSolved(k, k)) {
            change41GroupNumber(&seg, k, 0, m_crossing[k][k], false);
            change41GroupNumber(&seg, k, seg.m_numVertices - 2, m_crossing[k][k], true);
        }
    }
}

void CMlineEdit::getCornerPoint(int element, int count, int otherCount, double* point,
                                bool oppositeEnds, bool keepStart, bool isSecond) {
    const int partner = cornerPartner(element, count, otherCount, oppositeEnds, keepStart);
    const int row = isSecond ? partner : element;
    const int column = isSecond ? element : partner;
    if (m_crossing != nullptr && row >= 0 && row < m_crossingSize && column >= 0 &&
        column < m_crossingColumns) {
        copyPoint(m_crossing[row][column], point);
    }
}
