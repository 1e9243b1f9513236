// The tee tools: the end of one multiline, the stem, is joined to the side of another, the bar.
// What lies beyond the bar goes, vertices and all; the stem's end moves onto the bar's axis, its
// lines stop at lines of the bar, and in the open and merged forms the bar opens to let it in.

#include "CMlineEdit.h"
#include "segments.h"
#include "teePlan.h"
#include "vectorMath.h"

StepOutcome CMlineEdit::stepClosedTree() {
    return stepTee(TeeKind::closed);
}

StepOutcome CMlineEdit::stepOpenTree() {
    return stepTee(TeeKind::open);
}

StepOutcome CMlineEdit::stepMergedTree() {
    return stepTee(TeeKind::merged);
}

StepOutcome CMlineEdit::stepTee(TeeKind kind) {
    int stemSegment = -1;
    int barSegment = -1;
    double meeting[3] = {0.0, 0.0, 0.0};
    if (!getSegmentNumbers(&m_first, &m_second, &stemSegment, &barSegment, meeting, false) ||
        stemSegment < 0 || barSegment < 0) {
        return StepOutcome::noCrossing;
    }
    if (!set_PTCrossing(&m_first, stemSegment, &m_second, barSegment, &m_crossing,
                        &m_crossingSize)) {
        return StepOutcome::done; // nothing was changed, and the cycle still counts
    }
    mappingToSpecifyMongline(&m_first, 0, nullptr);
    mappingToSpecifyMongline(&m_second, 0, nullptr);
    const bool keepStart = crossingLiesAhead(m_first);
    if (!removeBeyondBar(stemSegment, barSegment, keepStart)) {
        return StepOutcome::failedSilently;
    }
    ptListInitialize(m_first.m_mline, m_first.m_numVertices, m_first.m_numElements,
                     &m_first.m_ptList, &m_first.m_ptListSize);
    // Of the end that stays, on the table of before the move.
    const TeeEnd end{keepStart, keepStart ? stemSegment : 0, keepStart ? stemSegment : 1};
    const bool nearerIsFirst = isNearerToFirstLine(0, end.reference);
    changePTPosition(m_first.m_mline, keepStart ? stemSegment + 1 : 0, meeting, m_first.m_ptList);
    change71GroupNumber(m_first.m_mline, keepStart ? 1 : -1, keepStart ? -1 : 1, -1, 1);

    if (kind == TeeKind::closed) {
        trimStemEach(end);
        return StepOutcome::done;
    }
    const TeePlan plan =
        teePlan(kind, m_first.m_numElements, m_second.m_numElements, nearerIsFirst);
    for (const CrossingAt& trim : plan.trims) {
        trimAt(trim, end);
    }
    // On one multiline the removed vertices have renumbered the bar.
    correctMapping(&m_second);
    for (const CrossCut& cut : plan.cuts) {
        cutBetween(cut, m_second.m_mappedSegment);
    }
    return StepOutcome::done;
}

// Whether the way from the segment's start to the pick, on element 0, and the way from the pick to
// the crossing look in one direction: then what lies before the crossing is kept.
bool CMlineEdit::crossingLiesAhead(const CMlineSegment& seg) const {
    if (!hasElement(seg, 0) || seg.m_segment < 0 || seg.m_segment >= seg.m_numVertices) {
        return false;
    }
    return PositionConnection(seg.m_ptList[0][seg.m_segment], seg.m_mappedPoint) ==
           PositionConnection(seg.m_mappedPoint, m_crossing[0][0]);
}

// Removes the stem's vertices on the side that is given up. False, with nothing removed, when stem
// and bar are one multiline and the part kept wouldn't hold the bar.
bool CMlineEdit::removeBeyondBar(int stemSegment, int barSegment, bool keepStart) {
    if (isSameEntity(m_first.m_name, m_second.m_name) &&
        (keepStart ? stemSegment <= barSegment : stemSegment >= barSegment)) {
        return false;
    }
    const int vertex = keepStart ? stemSegment + 2 : 0;
    const int times = keepStart ? m_first.m_numVertices - stemSegment - 2 : stemSegment;
    for (int i = 0; i < times; ++i) {
        delete_OneVertex(&m_first, vertex);
    }
    return true;
}

// Which outer line of the bar a stem element meets first, coming from the vertex that stays; the
// first line when they are equally far.
bool CMlineEdit::isNearerToFirstLine(int element, int reference) const {
    const int last = m_second.m_numElements - 1;
    if (!hasElement(m_first, element) || reference >= m_first.m_numVertices) {
        return true;
    }
    const double* const from = m_first.m_ptList[element][reference];
    return tklengine_distance(from, m_crossing[element][0]) <=
           tklengine_distance(from, m_crossing[element][last]);
}

// Each stem element stops at the outer line that it meets first, as the table stands then: every
// trim makes it anew.
void CMlineEdit::trimStemEach(const TeeEnd& end) {
    for (int element = 0; element < m_first.m_numElements; ++element) {
        const int line =
            isNearerToFirstLine(element, end.reference) ? 0 : m_second.m_numElements - 1;
        trimAt({element, line}, end);
    }
}

// Stops a stem element at a crossing; one that doesn't exist trims nothing.
void CMlineEdit::trimAt(const CrossingAt& at, const TeeEnd& end) {
    if (isCrossingSolved(at.first, at.second)) {
        change41GroupNumber(&m_first, at.first, end.trimVertex, m_crossing[at.first][at.second],
                            end.keepStart);
    }
}
