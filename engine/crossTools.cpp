#include "crossTools.h"

#include "CMlineEdit.h"

#include <algorithm>

namespace mledit {

namespace {

// Collects cuts of one multiline: an element is cut from one of the other's elements to another.
struct CutList {
    std::vector<CrossCut>& cuts;
    bool ofSecond;

    void cut(int element, int from, int to) const {
        const auto at = [&](int other) {
            return ofSecond ? CrossingAt{other, element} : CrossingAt{element, other};
        };
        cuts.push_back({ofSecond, element, at(from), at(to)});
    }
};

// Each inner element opens as far as the other multiline's lines of its own depth, so that the
// middle lines of both have no gap at all.
void cutInner(const CutList& list, int elements, int others) {
    for (int k = 1; k <= elements - 2; ++k) {
        const int depth = std::min({k, elements - 1 - k, (others - 1) / 2});
        list.cut(k, depth, others - 1 - depth);
    }
}

StepOutcome stepCross(CMlineEdit& run, CrossKind kind) {
    int firstSegment = -1;
    int secondSegment = -1;
    const bool found = run.getSegmentNumbers(&run.m_first, &run.m_second, &firstSegment,
                                             &secondSegment, nullptr, true);
    if (!found || firstSegment < 0 || secondSegment < 0) {
        return StepOutcome::failedSilently;
    }
    // Segments without a crossing of elements leave all as it is, and the cycle still counts.
    if (run.set_PTCrossing(&run.m_first, firstSegment, &run.m_second, secondSegment,
                           &run.m_crossing, &run.m_crossingSize)) {
        for (const CrossCut& cut :
             crossCuts(kind, run.m_first.m_numElements, run.m_second.m_numElements)) {
            cutBetween(run, cut, cut.cutsSecond ? secondSegment : firstSegment);
        }
    }
    return StepOutcome::done;
}

} // namespace

StepOutcome stepClosedCross(CMlineEdit& run) {
    return stepCross(run, CrossKind::closed);
}

StepOutcome stepOpenCross(CMlineEdit& run) {
    return stepCross(run, CrossKind::open);
}

StepOutcome stepMergedCross(CMlineEdit& run) {
    return stepCross(run, CrossKind::merged);
}

std::vector<CrossCut> crossCuts(CrossKind kind, int firstElements, int secondElements) {
    std::vector<CrossCut> cuts;
    const CutList first{cuts, false};
    const CutList second{cuts, true};
    const int lastFirst = firstElements - 1;
    const int lastSecond = secondElements - 1;

    if (kind == CrossKind::merged) {
        first.cut(0, 0, lastSecond);
        if (firstElements > 1) {
            first.cut(lastFirst, 0, lastSecond);
        }
        cutInner(first, firstElements, secondElements);
    } else {
        for (int element = 0; element < firstElements; ++element) {
            first.cut(element, 0, lastSecond);
        }
    }
    if (kind != CrossKind::closed) {
        second.cut(0, 0, lastFirst);
        second.cut(lastSecond, 0, lastFirst);
    }
    if (kind == CrossKind::merged) {
        cutInner(second, secondElements, firstElements);
    }
    return cuts;
}

void cutBetween(CMlineEdit& run, const CrossCut& cut, int segment) {
    if (!run.m_solvedCrossings.isSolved(cut.from.first, cut.from.second) ||
        !run.m_solvedCrossings.isSolved(cut.to.first, cut.to.second)) {
        return;
    }
    run.Cut_Mongline(cut.cutsSecond ? &run.m_second : &run.m_first, cut.element,
                     run.m_crossing[cut.from.first][cut.from.second], segment,
                     run.m_crossing[cut.to.first][cut.to.second], segment);
}

} // namespace mledit
