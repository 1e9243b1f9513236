#include "cornerPlan.h"

#include <algorithm>

namespace {

// An inner element of the multiline with at least as many elements.
int partnerOfMore(int element, int otherCount, bool oppositeEnds, bool keepStart) {
    if (otherCount > 2) {
        return oppositeEnds ? (element >= otherCount - 1 ? otherCount - 2 : element)
                            : std::max(otherCount - 1 - element, 1);
    }
    if (otherCount == 2) {
        return keepStart ? 0 : 1;
    }
    return oppositeEnds ? 0 : std::min(element, otherCount - 1);
}

} // namespace

int cornerPartner(int element, int count, int otherCount, bool oppositeEnds, bool keepStart) {
    if (element == 0) {
        return oppositeEnds ? 0 : otherCount - 1;
    }
    if (element == count - 1) {
        return oppositeEnds ? otherCount - 1 : 0;
    }
    if (count >= otherCount) {
        return partnerOfMore(element, otherCount, oppositeEnds, keepStart);
    }
    return keepStart ? element : otherCount - 1 - element;
}
