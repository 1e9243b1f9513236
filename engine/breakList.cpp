#include "breakList.h"

#include "VoMath.h"

#include <cstddef>

namespace mledit {

namespace {

// The first entry after the offset that is not before `from`; all of them when `from` is the
// segment's start. The size when there is none.
std::size_t firstReached(const BreakList& list, double from) {
    std::size_t k = 1;
    while (k < list.size() &&
           !(list[k] > from || areEqualBreaks(from, 0.0) || areEqualBreaks(list[k], from))) {
        ++k;
    }
    return k;
}

bool isBeforeOrAt(double entry, double to) {
    return entry < to || areEqualBreaks(entry, to);
}

} // namespace

bool areEqualBreaks(double a, double b) {
    constexpr double kSameBreak = 1e-10;
    return VoMath::isEqual(a, b, kSameBreak);
}

BreakList cutWithin(BreakList list, double from, double to, bool insertsEnds) {
    if (list.empty()) {
        return list;
    }
    std::size_t low = firstReached(list, from);
    std::size_t high = list.size() - 1;
    while (high > 0 && !isBeforeOrAt(list[high], to)) {
        --high;
    }
    // An end of the gap inside a drawn interval becomes a break of its own.
    if (insertsEnds && high % 2 == 1) {
        list.insert(entryAt(list, high + 1), to);
    }
    if (insertsEnds && low % 2 == 0) {
        list.insert(entryAt(list, low), from);
        ++low;
        ++high;
    }
    if (low <= high) {
        list.erase(entryAt(list, low), entryAt(list, high + 1));
    }
    return list;
}

BreakList cutToSegmentEnd(BreakList list, double from, bool insertsStart) {
    if (const std::size_t reached = firstReached(list, from); reached < list.size()) {
        list.resize(reached);
    }
    if (insertsStart) {
        list.push_back(from);
    }
    return list;
}

BreakList cutFromSegmentStart(BreakList list, double to, bool insertsEnd) {
    if (list.empty()) {
        return list;
    }
    std::size_t stop = list.size();
    while (stop > 1 && !isBeforeOrAt(list[stop - 1], to)) {
        --stop;
    }
    list.erase(entryAt(list, 1), entryAt(list, stop));
    if (insertsEnd) {
        list.insert(entryAt(list, 1), to);
    }
    return list;
}

BreakList cutWhole(BreakList list) {
    if (list.size() > 1) {
        list.resize(1);
    }
    return list;
}

} // namespace mledit
