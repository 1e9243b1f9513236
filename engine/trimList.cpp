#include "trimList.h"

namespace mledit {

namespace {

BreakList::iterator at(BreakList& list, std::size_t index) {
    return list.begin() + static_cast<BreakList::difference_type>(index);
}

} // namespace

BreakList keepUpTo(BreakList list, double distance, bool ahead) {
    if (list.empty()) {
        return list;
    }
    if (!ahead) {
        list.push_back(distance);
        return list;
    }
    std::size_t stop = list.size() - 1;
    while (stop > 0 && list[stop] >= distance && !areEqualBreaks(list[stop], distance)) {
        --stop;
    }
    const std::size_t erased = list.size() - 1 - stop;
    list.resize(stop + 1);
    // After an odd number the point lay in an interval, which now extends to the segment's end.
    if (erased % 2 == 0 && !areEqualBreaks(list.back(), distance)) {
        list.push_back(distance);
    }
    return list;
}

BreakList keepFrom(BreakList list, double distance, TrimPosition place) {
    if (list.empty()) {
        return list;
    }
    if (place == TrimPosition::beyondEnd) {
        list.push_back(distance);
        return list;
    }
    if (list.size() == 1) {
        return list;
    }
    const double start = place == TrimPosition::beforeStart ? -distance : distance;
    std::size_t stop = list.size() - 1;
    while (stop > 1 && !(list[stop] < start)) {
        --stop;
    }
    list.erase(at(list, 1), at(list, stop + 1));
    if (stop % 2 == 1) {
        list.insert(at(list, 1), start);
    }
    return list;
}

} // namespace mledit
