#include "crossCuts.h"

#include <algorithm>

namespace {

// Collects cuts of one multiline: an element is cut from one of the other's elements to another.
struct CutList {
    std::vector<CrossCut>& cuts;
    bool ofSecond;

    void cut(int element, int from, int to) const {
        const auto at = [&](int other) {
            return ofSecond ? CrossingAt{other, element} : CrossingAt{element, other};
        };
        cuts.push_back({ofSecond, element, at(from), at(to)});
    }
};

// Each inner element opens as far as the other multiline's lines of its own depth, so that the
// middle lines of both have no gap at all.
void cutInner(const CutList& list, int elements, int others) {
    for (int k = 1; k <= elements - 2; ++k) {
        const int depth = std::min({k, elements - 1 - k, (others - 1) / 2});
        list.cut(k, depth, others - 1 - depth);
    }
}

} // namespace

std::vector<CrossCut> crossCuts(CrossKind kind, int firstElements, int secondElements) {
    std::vector<CrossCut> cuts;
    const CutList first{cuts, false};
    const CutList second{cuts, true};
    const int lastFirst = firstElements - 1;
    const int lastSecond = secondElements - 1;

    if (kind == CrossKind::merged) {
        first.cut(0, 0, lastSecond);
        if (firstElements > 1) {
            first.cut(lastFirst, 0, lastSecond);
        }
        cutInner(first, firstElements, secondElements);
    } else {
        for (int element = 0; element < firstElements; ++element) {
            first.cut(element, 0, lastSecond);
        }
    }
    if (kind != CrossKind::closed) {
        second.cut(0, 0, lastFirst);
        second.cut(lastSecond, 0, lastFirst);
    }
    if (kind == CrossKind::merged) {
        cutInner(second, secondElements, firstElements);
    }
    return cuts;
}
