// The cross tools: two multilines that run over each other are opened where they cross. No vertex
// moves, only break lists change. The first pick is cut through, the second stays on top.

#include "CMlineEdit.h"
#include "crossCuts.h"

StepOutcome CMlineEdit::stepClosedCross() {
    return stepCross(CrossKind::closed);
}

StepOutcome CMlineEdit::stepOpenCross() {
    return stepCross(CrossKind::open);
}

StepOutcome CMlineEdit::stepMergedCross() {
    return stepCross(CrossKind::merged);
}

StepOutcome CMlineEdit::stepCross(CrossKind kind) {
    int firstSegment = -1;
    int secondSegment = -1;
    const bool found =
        getSegmentNumbers(&m_first, &m_second, &firstSegment, &secondSegment, nullptr, true);
    if (!found || firstSegment < 0 || secondSegment < 0) {
        return StepOutcome::failedSilently;
    }
    // Segments without a crossing of elements leave all as it is, and the cycle still counts.
    if (set_PTCrossing(&m_first, firstSegment, &m_second, secondSegment, &m_crossing,
                       &m_crossingSize)) {
        for (const CrossCut& cut : crossCuts(kind, m_first.m_numElements, m_second.m_numElements)) {
            cutBetween(cut, cut.cutsSecond ? secondSegment : firstSegment);
        }
    }
    return StepOutcome::done;
}

// Cuts an element between two crossings on one segment; where one of them doesn't exist, not at
// all.
void CMlineEdit::cutBetween(const CrossCut& cut, int segment) {
    if (!isCrossingSolved(cut.from.first, cut.from.second) ||
        !isCrossingSolved(cut.to.first, cut.to.second)) {
        return;
    }
    Cut_Mongline(cut.cutsSecond ? &m_second : &m_first, cut.element,
                 m_crossing[cut.from.first][cut.from.second], segment,
                 m_crossing[cut.to.first][cut.to.second], segment);
}
