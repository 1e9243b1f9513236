#include "cornerJoint.h"

#include "CMlineEdit.h"
#include "teeTools.h"
#include "vectorMath.h"
#include "vertexTools.h"

#include <algorithm>
#include <cstdlib>

namespace mledit {

namespace {

// An inner element of the multiline with at least as many elements.
int partnerOfMore(int element, int otherCount, bool oppositeEnds, bool keepStart) {
    if (otherCount > 2) {
        return oppositeEnds ? (element >= otherCount - 1 ? otherCount - 2 : element)
                            : std::max(otherCount - 1 - element, 1);
    }
    if (otherCount == 2) {
        return keepStart ? 0 : 1;
    }
    return oppositeEnds ? 0 : std::min(element, otherCount - 1);
}

// Which element of the other multiline an element joins.
//
// `count` elements in the multiline at hand, `otherCount` in the other. `oppositeEnds` says that
// one of the two keeps its start side and the other its end side, `keepStart` which side the one
// at hand keeps. The outer elements always join outer ones.
int cornerPartner(int element, int count, int otherCount, bool oppositeEnds, bool keepStart) {
    if (element == 0) {
        return oppositeEnds ? 0 : otherCount - 1;
    }
    if (element == count - 1) {
        return oppositeEnds ? otherCount - 1 : 0;
    }
    if (count >= otherCount) {
        return partnerOfMore(element, otherCount, oppositeEnds, keepStart);
    }
    return keepStart ? element : otherCount - 1 - element;
}

// Joining one multiline takes its first and last segment, whichever two were picked.
void takeOuterSegments(CMlineSegment& first, CMlineSegment& second) {
    const bool inOrder = first.m_segment <= second.m_segment;
    first.m_segment = inOrder ? 0 : first.m_numVertices - 2;
    second.m_segment = inOrder ? second.m_numVertices - 2 : 0;
}

// The picks don't count then: each is replaced by the middle of its segment.
void mapToMiddle(CMlineSegment& seg) {
    const double* const start = seg.m_ptList[0][seg.m_segment];
    const double* const end = seg.m_ptList[0][seg.m_segment + 1];
    for (int i = 0; i < 3; ++i) {
        seg.m_mappedPoint[i] = (start[i] + end[i]) / 2.0;
    }
}

// Removal at the head leaves m_segment as it was: the segment in question is then segment 0.
void removeBeyondCorner(CMlineEdit& run, CMlineSegment& seg, bool keepStart) {
    if (keepStart) {
        removeVertices(run, seg, seg.m_segment + 2, seg.m_numVertices - seg.m_segment - 2);
    } else {
        removeVertices(run, seg, 0, seg.m_segment);
    }
}

void moveEnd(CMlineEdit& run, CMlineSegment& seg, int vertex, const double* position) {
    run.ptListInitialize(seg.m_mline, seg.m_numVertices, seg.m_numElements, &seg.m_ptList,
                         &seg.m_ptListSize);
    run.changePTPosition(seg.m_mline, vertex, position, seg.m_ptList);
}

// What a joint of two multilines needs to know besides the record at hand.
struct CornerSide {
    int otherElements;
    bool oppositeEnds;
    bool keepStart;
    bool isSecond;
};

// Suppresses the cap at the joined end and stops each element at its corner.
void trimToCorner(CMlineEdit& run, CMlineSegment& seg, const CornerSide& side) {
    const auto [otherElements, oppositeEnds, keepStart, isSecond] = side;
    run.change71GroupNumber(seg.m_mline, keepStart ? 1 : -1, keepStart ? -1 : 1, -1, 1);
    for (int element = 0; element < seg.m_numElements; ++element) {
        const int partner =
            cornerPartner(element, seg.m_numElements, otherElements, oppositeEnds, keepStart);
        if (!run.m_solvedCrossings.isSolved(isSecond ? partner : element,
                                            isSecond ? element : partner)) {
            continue;
        }
        double corner[3] = {0.0, 0.0, 0.0};
        run.getCornerPoint(element, seg.m_numElements, otherElements, corner, oppositeEnds,
                           keepStart, isSecond);
        run.change41GroupNumber(&seg, element, keepStart ? seg.m_segment : 0, corner, keepStart);
    }
}

void joinTwo(CMlineEdit& run, const double* corner, bool firstKeepsStart, bool secondKeepsStart) {
    CMlineSegment& first = run.m_first;
    CMlineSegment& second = run.m_second;
    removeBeyondCorner(run, first, firstKeepsStart);
    removeBeyondCorner(run, second, secondKeepsStart);
    moveEnd(run, first, firstKeepsStart ? first.m_segment + 1 : 0, corner);
    moveEnd(run, second, secondKeepsStart ? second.m_segment + 1 : 0, corner);

    const bool oppositeEnds = firstKeepsStart != secondKeepsStart;
    trimToCorner(run, first, {second.m_numElements, oppositeEnds, firstKeepsStart, false});
    trimToCorner(run, second, {first.m_numElements, oppositeEnds, secondKeepsStart, true});
}

void cutLoopOut(CMlineEdit& run, CMlineSegment& seg, int laterSegment, const double* corner) {
    const int start = seg.m_segment;
    removeVertices(run, seg, start + 2, laterSegment - start - 1);
    moveEnd(run, seg, start + 1, corner);
}

// Both ends move to the corner, and each element stops at its crossing with itself.
void closeLoop(CMlineEdit& run, CMlineSegment& seg, const double* corner) {
    moveEnd(run, seg, seg.m_numVertices - 1, corner);
    moveEnd(run, seg, 0, corner);
    run.change71GroupNumber(seg.m_mline, 1, 1, -1, 1);
    for (int k = 0; k < seg.m_numElements; ++k) {
        if (run.m_solvedCrossings.isSolved(k, k)) {
            run.change41GroupNumber(&seg, k, 0, run.m_crossing[k][k], false);
            run.change41GroupNumber(&seg, k, seg.m_numVertices - 2, run.m_crossing[k][k], true);
        }
    }
}

// The first record is on the first segment or the last one. The first one keeping its start and the
// last one its end means that the loop between them is removed; the other way round it is closed at
// the corner.
StepOutcome joinWithItself(CMlineEdit& run, const double* corner, bool firstKeepsStart,
                           bool secondKeepsStart) {
    CMlineSegment& first = run.m_first;
    CMlineSegment& second = run.m_second;
    if (firstKeepsStart == secondKeepsStart || first.m_segment == second.m_segment) {
        return StepOutcome::failedSilently;
    }
    const bool inOrder = first.m_segment < second.m_segment;
    CMlineSegment& earlier = inOrder ? first : second;
    CMlineSegment& later = inOrder ? second : first;
    const bool earlierKeepsStart = inOrder ? firstKeepsStart : secondKeepsStart;
    if (earlierKeepsStart) {
        cutLoopOut(run, earlier, later.m_segment, corner);
    } else {
        closeLoop(run, later, corner);
    }
    return StepOutcome::done;
}

} // namespace

StepOutcome stepCornerJoint(CMlineEdit& run) {
    CMlineSegment& first = run.m_first;
    CMlineSegment& second = run.m_second;
    const bool isOne = isSameEntity(first.m_name, second.m_name);
    if (isOne) {
        if (std::abs(first.m_segment - second.m_segment) == 1) {
            return StepOutcome::failedSilently;
        }
        takeOuterSegments(first, second);
    }
    const int s = first.m_segment;
    const int t = second.m_segment;
    if (!run.set_PTCrossing(&first, s, &second, t, &run.m_crossing, &run.m_crossingSize)) {
        return StepOutcome::noCrossing;
    }
    double corner[3] = {0.0, 0.0, 0.0};
    if (!run.getXPoint(first.m_mline, s, second.m_mline, t, corner)) {
        return StepOutcome::noCrossing;
    }
    run.mappingToSpecifyMongline(&first, 0, nullptr);
    run.mappingToSpecifyMongline(&second, 0, nullptr);
    if (isOne) {
        mapToMiddle(first);
        mapToMiddle(second);
    }
    const bool firstKeepsStart = crossingLiesAhead(run, first);
    const bool secondKeepsStart = crossingLiesAhead(run, second);
    if (isOne) {
        return joinWithItself(run, corner, firstKeepsStart, secondKeepsStart);
    }
    joinTwo(run, corner, firstKeepsStart, secondKeepsStart);
    return StepOutcome::done;
}

} // namespace mledit

void CMlineEdit::getCornerPoint(int element, int count, int otherCount, double* point,
                                bool oppositeEnds, bool keepStart, bool isSecond) {
    const int partner = mledit::cornerPartner(element, count, otherCount, oppositeEnds, keepStart);
    const int row = isSecond ? partner : element;
    const int column = isSecond ? element : partner;
    if (m_crossing != nullptr && m_solvedCrossings.contains(row, column)) {
        mledit::copyPoint(m_crossing[row][column], point);
    }
}
