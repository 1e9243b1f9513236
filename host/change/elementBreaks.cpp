#include "elementBreaks.h"

#include "breakLists.h"
#include "hostText.h"
#include "impossible.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace orvex {

Result<MlineContent> withBreaks(const MlineContent& mline, unsigned segment, unsigned element,
                                std::span<const double> distances) {
    const MlineChain chain(mline);
    if (segment >= chain.segmentCount()) {
        return impossible(hostText("it has no segment %1", {std::to_string(segment)}));
    }
    if (element >= mline.lists.elementCount(segment)) {
        return impossible(hostText("it has no element %1", {std::to_string(element)}));
    }
    if (!std::all_of(distances.begin(), distances.end(),
                     [](double value) { return std::isfinite(value); })) {
        return impossible(hostText("a distance isn't finite"));
    }
    const auto old = chain.line(segment, element);
    std::vector<double> list{old.empty() ? 0.0 : old.front()};
    list.insert(list.end(), distances.begin(), distances.end());
    if (!ascends(list)) {
        return impossible(hostText("the distances don't ascend"));
    }
    MlineContent changed = mline;
    VoVector<KdMLSegment> record = mline.lists.nested(segment);
    record[static_cast<int>(element)].m_lineParams = toParameters(list);
    changed.lists.setNested(segment, record);
    return changed;
}

} // namespace orvex
