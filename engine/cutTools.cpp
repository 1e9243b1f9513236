// Cut single and cut all: a gap between two picks on one multiline. Only break lists change.

#include "CMlineEdit.h"

namespace {

void cutBetweenPicks(CMlineEdit& run) {
    CMlineSegment& first = run.m_first;
    const CMlineSegment& second = run.m_second;
    run.Cut_Mongline(&first, first.m_mappedElement, first.m_mappedPoint, first.m_mappedSegment,
                     second.m_mappedPoint, second.m_mappedSegment);
}

} // namespace

// Cuts the element of the first pick; a second pick on another element is carried over to it.
StepOutcome CMlineEdit::stepCutSingle() {
    if (m_first.m_element != m_second.m_element) {
        mappingToSpecifyMongline(&m_second, m_first.m_element, nullptr);
    }
    cutBetweenPicks(*this);
    return StepOutcome::done;
}

StepOutcome CMlineEdit::stepCutAll() {
    for (int k = 0; k < m_first.m_numElements; ++k) {
        mappingToSpecifyMongline(&m_first, k, nullptr);
        mappingToSpecifyMongline(&m_second, k, nullptr);
        cutBetweenPicks(*this);
    }
    return StepOutcome::done;
}
