#pragma once

#include "snapPoints.h"

namespace orvex {

// What a point of the plan may be drawn to.
struct SnapTarget {
    SnapMode mode = SnapMode::nearest;
    PlanPoint at;                           // the target's own place, to the bit
    std::array<std::uint64_t, 2> handles{}; // whose it is; the second of a crossing, else 0
    std::optional<PlanPoint> attractor{};   // what drew the cursor, where that is another place
    double pixels = 0.0;                    // from the cursor to what drew it
    SnapLine line{};                        // of nearest
};

struct SnapQuery {
    PlanPoint cursor;
    double unitsPerPixel = 1.0;
    SnapModes modes = SnapModes::all();
    double aperture = 10.0;          // pixels to each side of the cursor, at every zoom
    std::optional<PlanPoint> base{}; // where the line to the point begins
    SnapExclusion exclusion{};
    std::optional<SnapTarget> held{}; // what the last search found, of the same modes
};

// The target near the cursor. Points win over lines; of points the nearest wins, and the order of
// the modes within a pixel of it. A point that is held is kept somewhat farther than it was
// caught, unless another one is clearly nearer. Where vertices are all that is wanted, an element
// of a multiline draws to the nearer vertex of its segment. Its cost doesn't depend on how much
// lies under the cursor.
std::optional<SnapTarget> findSnap(Scene& scene, const SnapQuery& query);

// The next target of these modes from a place into a direction along an axis of the plan, within
// an eighth of a turn to each side; the nearest of those in `area`.
std::optional<SnapTarget> nextSnap(Scene& scene, PlanPoint from, PlanPoint direction,
                                   const PlanBox& area, SnapModes modes, double unitsPerPixel);

} // namespace orvex
