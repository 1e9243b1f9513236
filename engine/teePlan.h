#pragma once

#include "crossCuts.h"

#include <vector>

// The tees, told as where each element of the stem stops and how the bar opens. The first
// multiline is the stem, the second the bar.

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

struct TeePlan {
    std::vector<CrossingAt> trims; // in their order
    std::vector<CrossCut> cuts;    // of the bar, after all trims
};

// For the open and merged forms. `nearerIsFirst` says that the bar's line 0 lies nearer to the stem
// than its last line.
TeePlan teePlan(TeeKind kind, int stemElements, int barElements, bool nearerIsFirst);
