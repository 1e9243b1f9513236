#pragma once

#include "MlineContent.h"

#include <vector>

namespace orvex::testing {

// Parallel to x; an element for each list of its position and its breaks.
inline MlineContent straightMline(const KdGePoint3d& start, double length,
                                  const std::vector<std::vector<double>>& lists) {
    MlineContent mline;
    mline.justification = 1;
    for (const bool isStart : {true, false}) {
        const KdGeVector3d way{isStart ? 0.0 : length, 0, 0};
        mline.vertices.push_back({start + way, {1, 0, 0}, {0, 1, 0}});
        VoVector<KdMLSegment> record;
        for (const std::vector<double>& list : lists) {
            KdMLSegment element;
            for (const double value : isStart ? list : std::vector<double>{list[0], 0.0}) {
                element.m_lineParams.append(value);
            }
            record.append(element);
        }
        mline.lists.appendVertex();
        mline.lists.setNested(isStart ? 0 : 1, record);
    }
    return mline;
}

} // namespace orvex::testing
