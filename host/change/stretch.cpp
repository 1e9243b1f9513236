#include "stretch.h"

#include "breakLists.h"
#include "layRight.h"
#include "mlineTrack.h"
#include "planMotion.h"

#include <algorithm>

namespace orvex {

Result<MlineContent> stretched(const MlineContent& mline, const StyleLayout& style,
                               const std::function<bool(const KdGePoint3d&)>& isChosen,
                               const KdGeVector3d& shift) {
    std::vector<bool> goes;
    for (const ChainVertex& vertex : mline.vertices) {
        goes.push_back(isChosen(vertex.position));
    }
    const auto count = std::count(goes.begin(), goes.end(), true);
    if (count == 0) {
        return mline;
    }
    if (static_cast<std::size_t>(count) == goes.size()) {
        return movedBy(mline, shiftBy(shift));
    }
    if (const auto contradiction = gapContradiction(mline)) {
        return *contradiction;
    }
    const MlineChain chain(mline);
    MlineContent changed = mline;
    std::vector<KdGeVector3d> shifts(chain.segmentCount());
    for (unsigned v = 0; v < chain.vertexCount(); ++v) {
        if (goes[v]) {
            changed.vertices[v].position = mline.vertices[v].position + shift;
        }
        if (v < shifts.size() && goes[v] && goes[chain.next(v)]) {
            shifts[v] = shift;
        }
    }
    return laidAnew(std::move(changed), mline, style, shifts);
}

} // namespace orvex
