#include "trimList.h"

namespace mledit {

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
    list.erase(entryAt(list, 1), entryAt(list, stop + 1));
    if (stop % 2 == 1) {
        list.insert(entryAt(list, 1), start);
    }
    return list;
}

} // namespace mledit
