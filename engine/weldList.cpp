#include "weldList.h"

#include "comparisons.h"

#include <algorithm>

namespace mledit {

namespace {

using Index = std::size_t;

// The first break at or after the lower end; the size when there is none.
Index firstFromLower(const BreakList& list, const WeldEnd& lower, double tolerance) {
    Index index = 1;
    while (index < list.size()) {
        const double x = list[index];
        if (x > lower.distance || areEqualBreaks(lower.distance, list[1]) ||
            (lower.takesBreakAtIt && mlineRealEqual(x, lower.distance, tolerance))) {
            return index;
        }
        ++index;
    }
    return list.size();
}

// The index after the last entry before the upper end. The offset takes part in the comparison like
// a break; 0 when no entry lies before the end.
Index stopAtUpper(const BreakList& list, const WeldEnd& upper, double tolerance) {
    Index stop = list.size();
    while (stop > 0) {
        const double x = list[stop - 1];
        if (x < upper.distance ||
            (upper.takesBreakAtIt && mlineRealEqual(x, upper.distance, tolerance))) {
            return stop;
        }
        --stop;
    }
    return 0;
}

// Erases the entries from `from` up to but not `stop`; a reversed range is empty. Returns how many.
Index eraseRange(BreakList& list, Index from, Index stop) {
    if (from >= stop) {
        return 0;
    }
    list.erase(entryAt(list, from), entryAt(list, stop));
    return stop - from;
}

void makeWholeIfBare(BreakList& list) {
    if (list.size() == 1) {
        list.push_back(0.0);
    }
}

} // namespace

bool liesInGap(const BreakList& list, double distance, double tolerance) {
    Index index = 1;
    while (index < list.size() &&
           (list[index] <= distance || mlineRealEqual(list[index], distance, tolerance))) {
        ++index;
    }
    return (index - 1) % 2 == 0;
}

BreakList weldWithin(BreakList list, const WeldEnd& lower, const WeldEnd& upper, double tolerance) {
    eraseRange(list, firstFromLower(list, lower, tolerance), stopAtUpper(list, upper, tolerance));
    makeWholeIfBare(list);
    return list;
}

BreakList weldToSegmentEnd(BreakList list, const WeldEnd& lower, double tolerance) {
    eraseRange(list, firstFromLower(list, lower, tolerance), list.size());
    makeWholeIfBare(list);
    return list;
}

BreakList weldFromSegmentStart(BreakList list, const WeldEnd& upper, double tolerance) {
    const Index erased = eraseRange(list, 1, stopAtUpper(list, upper, tolerance));
    if (erased % 2 == 1) {
        list.insert(entryAt(list, 1), 0.0);
    }
    return list;
}

BreakList weldWhole(BreakList list) {
    if (!list.empty()) {
        list.resize(1);
        list.push_back(0.0);
    }
    return list;
}

} // namespace mledit
