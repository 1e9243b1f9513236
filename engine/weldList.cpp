#include "weldList.h"

#include "VoMath.h"
#include "comparisons.h"

#include <algorithm>

namespace mledit {

namespace {

constexpr double kEqualBreaks = 1e-10; // drawing units

using Index = std::size_t;

BreakList::iterator at(BreakList& list, Index index) {
    return list.begin() + static_cast<BreakList::difference_type>(index);
}

// The first break that lies at or behind the lower end; the size when there is none.
Index firstBehind(const BreakList& list, const WeldEnd& lower, double tolerance) {
    Index index = 1;
    while (index < list.size()) {
        const double x = list[index];
        if (x > lower.distance || VoMath::isEqual(lower.distance, list[1], kEqualBreaks) ||
            (lower.takesBreakAtIt && mlineRealEqual(x, lower.distance, tolerance))) {
            return index;
        }
        ++index;
    }
    return list.size();
}

// Behind the last entry before the upper end. The offset takes part in the comparison like a
// break; 0 when no entry lies before the end.
Index behindLastBefore(const BreakList& list, const WeldEnd& upper, double tolerance) {
    Index behind = list.size();
    while (behind > 0) {
        const double x = list[behind - 1];
        if (x < upper.distance ||
            (upper.takesBreakAtIt && mlineRealEqual(x, upper.distance, tolerance))) {
            return behind;
        }
        --behind;
    }
    return 0;
}

// Entries `from` up to but not `behind`; a range that runs backward is empty. Returns how many.
Index eraseRange(BreakList& list, Index from, Index behind) {
    if (from >= behind) {
        return 0;
    }
    list.erase(at(list, from), at(list, behind));
    return behind - from;
}

void makeWholeIfBare(BreakList& list) {
    if (list.size() == 1) {
        list.push_back(0.0);
    }
}

} // namespace

bool standsInGap(const BreakList& list, double distance, double tolerance) {
    Index index = 1;
    while (index < list.size() &&
           (list[index] <= distance || mlineRealEqual(list[index], distance, tolerance))) {
        ++index;
    }
    return (index - 1) % 2 == 0;
}

BreakList weldWithin(BreakList list, const WeldEnd& lower, const WeldEnd& upper, double tolerance) {
    eraseRange(list, firstBehind(list, lower, tolerance), behindLastBefore(list, upper, tolerance));
    makeWholeIfBare(list);
    return list;
}

BreakList weldToSegmentEnd(BreakList list, const WeldEnd& lower, double tolerance) {
    eraseRange(list, firstBehind(list, lower, tolerance), list.size());
    makeWholeIfBare(list);
    return list;
}

BreakList weldFromSegmentStart(BreakList list, const WeldEnd& upper, double tolerance) {
    const Index erased = eraseRange(list, 1, behindLastBefore(list, upper, tolerance));
    if (erased % 2 == 1) {
        list.insert(at(list, 1), 0.0);
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
