#pragma once

#include "SnapMode.h"
#include "snapScan.h"

#include <array>

namespace orvex {

// A point that a cursor near it is drawn to.
struct SnapPoint {
    SnapMode mode = SnapMode::end;
    PlanPoint at;
    std::array<std::uint64_t, 2> handles{}; // whose it is; the second of a crossing, else 0
};

// All targets of these modes on the pieces, but for the nearest points of lines. Perpendicular
// feet need a base. Crossings aren't looked for among very many pieces.
std::vector<SnapPoint> snapPointsOn(const std::vector<SnapPiece>& pieces, SnapModes modes,
                                    const std::optional<PlanPoint>& base);

} // namespace orvex
