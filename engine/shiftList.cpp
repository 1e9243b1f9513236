#include "shiftList.h"

#include <algorithm>
#include <cmath>

namespace mledit {

namespace {

constexpr double kLeastTurn = 0.005; // radians, instead of 0

void addAfterOffset(BreakList& list, double distance) {
    for (std::size_t index = 1; index < list.size(); ++index) {
        list[index] += distance;
    }
}

// The first break above 0 after the offset, the end when there is none.
BreakList::iterator firstAhead(BreakList& list) {
    return std::find_if(std::min(list.begin() + 1, list.end()), list.end(),
                        [](double x) { return x > 0.0; });
}

} // namespace

double alongMiter(double offset, double turn) {
    return offset / std::sin(turn == 0.0 ? kLeastTurn : turn);
}

BreakList unbrokenList(double offset, double turn) {
    return {alongMiter(offset, turn), 0.0};
}

BreakList shortenFromStart(BreakList list, double distance) {
    if (list.empty()) {
        return list;
    }
    addAfterOffset(list, -distance);
    const auto found = firstAhead(list);
    const auto erased = found - (list.begin() + 1);
    list.erase(list.begin() + 1, found);
    if (erased % 2 != 0) {
        list.insert(list.begin() + 1, 0.0); // the new start lies inside an interval
    }
    return list;
}

BreakList lengthenAtStart(BreakList list, double distance) {
    addAfterOffset(list, distance);
    return list;
}

BreakList endAt(BreakList list, double distance) {
    while (list.size() > 1 && !(list.back() < distance)) {
        list.pop_back();
    }
    return list;
}

BreakList growAtStart(BreakList list, double distance, double offset) {
    if (list.empty()) {
        return list;
    }
    addAfterOffset(list, distance);
    if (list.size() > 1 && areEqualBreaks(list[1], distance)) {
        list[1] = 0.0;
    }
    list[0] = offset;
    return list;
}

BreakList shrinkAtStart(BreakList list, double distance, double offset) {
    if (list.empty()) {
        return list;
    }
    addAfterOffset(list, -distance);
    const auto found = firstAhead(list);
    const auto erased = found - list.begin();
    list.erase(list.begin(), found);
    if (erased % 2 == 0) {
        list.insert(list.begin(), 0.0);
    }
    list.insert(list.begin(), offset);
    return list;
}

BreakList beforeNewVertex(BreakList list, double distance) {
    std::size_t kept = 1;
    while (kept < list.size() && list[kept] < distance) {
        ++kept;
    }
    list.resize(std::min(kept, list.size()));
    return list;
}

BreakList withoutIntervals(BreakList list) {
    list.resize(std::min<std::size_t>(list.size(), 1));
    return list;
}

} // namespace mledit
