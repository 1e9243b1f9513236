#pragma once

#include "EditTool.h"

#include <vector>

// The cross tools: two multilines that cross are opened where they do. No vertex moves, only break
// lists change. The first pick is cut through, the second stays on top.

namespace mledit {

StepOutcome stepClosedCross(CMlineEdit& run);
StepOutcome stepOpenCross(CMlineEdit& run);
StepOutcome stepMergedCross(CMlineEdit& run);

enum class CrossKind {
    closed, // the first multiline passes under the second
    open,   // and the second's outer lines open too
    merged, // both open as nested corners, middle lines run through
};

// An entry of the matrix of crossings: element of the first, element of the second.
struct CrossingAt {
    int first;
    int second;

    friend bool operator==(const CrossingAt&, const CrossingAt&) = default;
};

struct CrossCut {
    bool cutsSecond; // else the first multiline
    int element;
    CrossingAt from;
    CrossingAt to;

    friend bool operator==(const CrossCut&, const CrossCut&) = default;
};

// The cuts in their order, for multilines of so many elements.
std::vector<CrossCut> crossCuts(CrossKind kind, int firstElements, int secondElements);

// Cuts an element between two crossings on one segment; not at all where one of them doesn't exist.
void cutBetween(CMlineEdit& run, const CrossCut& cut, int segment);

} // namespace mledit
