#include "teeTools.h"

#include "CMlineEdit.h"
#include "crossTools.h"
#include "vectorMath.h"
#include "vertexTools.h"

#include <algorithm>
#include <vector>

namespace mledit {

namespace {

enum class TeeKind {
    closed, // each stem element stops at the outer line it meets first
    open,   // all stop at one outer line, which opens
    merged, // stem and bar join line by line, from the outside in
};

// The end of the stem that is being joined.
struct TeeEnd {
    bool keepStart; // the stem keeps its beginning
    int trimVertex; // whose lists are trimmed: the start of the stem's last segment
    int reference;  // the vertex at that segment's other end, which stays
};

// Where each element of the stem stops and how the bar opens.
struct TeePlan {
    std::vector<CrossingAt> trims; // in their order
    std::vector<CrossCut> cuts;    // of the bar, after all trims
};

// The bar's line at a depth counted from the stem.
struct BarLines {
    int count;
    bool nearerIsFirst;

    [[nodiscard]] int atDepth(int depth) const { return nearerIsFirst ? depth : count - 1 - depth; }
};

TeePlan openPlan(int stem, const BarLines& bar) {
    TeePlan plan;
    const int near = bar.atDepth(0);
    for (int element = 0; element < stem; ++element) {
        plan.trims.push_back({element, near});
    }
    plan.cuts.push_back({true, near, {0, near}, {stem - 1, near}});
    return plan;
}

// A bar of one line has no depth, so nothing of it opens.
TeePlan mergedPlan(int stem, const BarLines& bar) {
    int limit = std::min(bar.count - 2, stem / 2);
    if (limit < 1) {
        limit = bar.count - 1;
    }
    TeePlan plan;
    const int near = bar.atDepth(0);
    plan.trims.push_back({0, near});
    plan.trims.push_back({stem - 1, near});
    for (int k = 1; k <= stem - 2; ++k) {
        plan.trims.push_back({k, bar.atDepth(std::min({k, stem - 1 - k, limit}))});
    }
    for (int depth = 0; depth < limit; ++depth) {
        const int line = bar.atDepth(depth);
        plan.cuts.push_back({true, line, {depth, line}, {stem - 1 - depth, line}});
    }
    return plan;
}

// For the open and merged forms. `nearerIsFirst` says that the bar's line 0 lies nearer to the stem
// than its last line.
TeePlan teePlan(TeeKind kind, int stemElements, int barElements, bool nearerIsFirst) {
    const BarLines bar{barElements, nearerIsFirst};
    return kind == TeeKind::merged ? mergedPlan(stemElements, bar) : openPlan(stemElements, bar);
}

// Removes the stem's vertices on the side that is given up. False, with nothing removed, when stem
// and bar are one multiline and the part kept wouldn't hold the bar.
bool removeBeyondBar(CMlineEdit& run, int stemSegment, int barSegment, bool keepStart) {
    if (isSameEntity(run.m_first.m_name, run.m_second.m_name) &&
        (keepStart ? stemSegment <= barSegment : stemSegment >= barSegment)) {
        return false;
    }
    const int vertex = keepStart ? stemSegment + 2 : 0;
    const int times = keepStart ? run.m_first.m_numVertices - stemSegment - 2 : stemSegment;
    removeVertices(run, run.m_first, vertex, times);
    return true;
}

// Which outer line of the bar a stem element meets first, coming from the vertex that stays; the
// first line when they are equally far.
bool isNearerToFirstLine(const CMlineEdit& run, int element, int reference) {
    const CMlineSegment& stem = run.m_first;
    if (!hasElement(stem, element) || reference >= stem.m_numVertices) {
        return true;
    }
    const int last = run.m_second.m_numElements - 1;
    const double* const from = stem.m_ptList[element][reference];
    return tklengine_distance(from, run.m_crossing[element][0]) <=
           tklengine_distance(from, run.m_crossing[element][last]);
}

// Stops a stem element at a crossing; one that doesn't exist trims nothing.
void trimAt(CMlineEdit& run, const CrossingAt& at, const TeeEnd& end) {
    if (run.m_solvedCrossings.isSolved(at.first, at.second)) {
        run.change41GroupNumber(&run.m_first, at.first, end.trimVertex,
                                run.m_crossing[at.first][at.second], end.keepStart);
    }
}

// Each stem element stops at the outer line that it meets first, by the table at that time: every
// trim rebuilds it.
void trimStemEach(CMlineEdit& run, const TeeEnd& end) {
    for (int element = 0; element < run.m_first.m_numElements; ++element) {
        const int line =
            isNearerToFirstLine(run, element, end.reference) ? 0 : run.m_second.m_numElements - 1;
        trimAt(run, {element, line}, end);
    }
}

StepOutcome stepTee(CMlineEdit& run, TeeKind kind) {
    CMlineSegment& stem = run.m_first;
    CMlineSegment& bar = run.m_second;
    int stemSegment = -1;
    int barSegment = -1;
    double meeting[3] = {0.0, 0.0, 0.0};
    if (!run.getSegmentNumbers(&stem, &bar, &stemSegment, &barSegment, meeting, false) ||
        stemSegment < 0 || barSegment < 0) {
        return StepOutcome::noCrossing;
    }
    if (!run.set_PTCrossing(&stem, stemSegment, &bar, barSegment, &run.m_crossing,
                            &run.m_crossingSize)) {
        return StepOutcome::done; // nothing was changed, and the cycle still counts
    }
    run.mappingToSpecifyMongline(&stem, 0, nullptr);
    run.mappingToSpecifyMongline(&bar, 0, nullptr);
    const bool keepStart = crossingLiesAhead(run, stem);
    if (!removeBeyondBar(run, stemSegment, barSegment, keepStart)) {
        return StepOutcome::failedSilently;
    }
    run.ptListInitialize(stem.m_mline, stem.m_numVertices, stem.m_numElements, &stem.m_ptList,
                         &stem.m_ptListSize);
    // Of the end that stays, on the table of before the move.
    const TeeEnd end{keepStart, keepStart ? stemSegment : 0, keepStart ? stemSegment : 1};
    const bool nearerIsFirst = isNearerToFirstLine(run, 0, end.reference);
    run.changePTPosition(stem.m_mline, keepStart ? stemSegment + 1 : 0, meeting, stem.m_ptList);
    run.change71GroupNumber(stem.m_mline, keepStart ? 1 : -1, keepStart ? -1 : 1, -1, 1);

    if (kind == TeeKind::closed) {
        trimStemEach(run, end);
        return StepOutcome::done;
    }
    const TeePlan plan = teePlan(kind, stem.m_numElements, bar.m_numElements, nearerIsFirst);
    for (const CrossingAt& trim : plan.trims) {
        trimAt(run, trim, end);
    }
    // On one multiline the removed vertices have renumbered the bar.
    run.correctMapping(&bar);
    for (const CrossCut& cut : plan.cuts) {
        cutBetween(run, cut, bar.m_mappedSegment);
    }
    return StepOutcome::done;
}

} // namespace

StepOutcome stepClosedTee(CMlineEdit& run) {
    return stepTee(run, TeeKind::closed);
}

StepOutcome stepOpenTee(CMlineEdit& run) {
    return stepTee(run, TeeKind::open);
}

StepOutcome stepMergedTee(CMlineEdit& run) {
    return stepTee(run, TeeKind::merged);
}

bool crossingLiesAhead(const CMlineEdit& run, const CMlineSegment& seg) {
    if (!hasElement(seg, 0) || seg.m_segment < 0 || seg.m_segment >= seg.m_numVertices) {
        return false;
    }
    return CMlineEdit::PositionConnection(seg.m_ptList[0][seg.m_segment], seg.m_mappedPoint) ==
           CMlineEdit::PositionConnection(seg.m_mappedPoint, run.m_crossing[0][0]);
}

} // namespace mledit
