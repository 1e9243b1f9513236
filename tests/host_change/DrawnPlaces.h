#pragma once

#include "mlineTrack.h"

#include <algorithm>
#include <limits>

namespace orvex::testing {

// Where the stretches of all elements begin and end.
inline std::vector<KdGePoint3d> drawnPlaces(const MlineContent& mline) {
    const MlineChain chain(mline);
    std::vector<KdGePoint3d> places;
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        for (unsigned e = 0; e < chain.elementCount(); ++e) {
            const MlineTrack track = chain.track(s, e);
            forEachStretch(chain.line(s, e), track.length, [&](const MlineStretch& stretch) {
                places.push_back(track.at(stretch.begin));
                places.push_back(stretchEnd(track, stretch));
            });
        }
    }
    return places;
}

// Infinite where they aren't as many.
inline double farthest(const std::vector<KdGePoint3d>& a, const std::vector<KdGePoint3d>& b) {
    double most = a.size() == b.size() ? 0.0 : std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
        most = std::max(most, (a[i] - b[i]).length());
    }
    return most;
}

} // namespace orvex::testing
