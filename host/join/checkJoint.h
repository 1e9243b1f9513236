#pragma once

#include "JoinPlace.h"

namespace orvex {

// The two walls of a place; for a wall that meets itself both are the same object.
struct JoinPair {
    const JoinWall& first;
    const JoinWall& second;
};

// Whether the outer elements draw the outline of the place, and nothing else: in exactly the kind
// that the place asks for, inner elements included, or in any kind by the outer elements alone.
// Also false when an end that was joined still draws its cap.
[[nodiscard]] bool isJoined(const JoinPlace& place, const JoinPair& walls);
[[nodiscard]] bool isJoinedInAnyKind(const JoinPlace& place, const JoinPair& walls);

// Whether a wall still has its segments and elements: a tool that takes vertices out makes no
// joint.
[[nodiscard]] bool keepsSegments(const JoinWall& before, const JoinWall& now);
// Whether each element still lies on the line it lay on, segment by segment; ends may have moved
// along their own segment. Both have the same segments and elements.
[[nodiscard]] bool keepsLines(const JoinWall& before, const JoinWall& now);

// A list that has to be set for a joint to be right: `stops` is the list without its first value.
// For MLSTOPS: #handle, segment, element, the stops.
struct RenewedStops {
    unsigned wall = 0; // index into the plan's walls
    std::uint64_t handle = 0;
    unsigned segment = 0;
    unsigned element = 0;
    std::vector<double> stops;
};

// Which lists of both walls differ from "as before, with this joint made", and what they have to
// be. `before` are the walls before the tool and the moves were played.
[[nodiscard]] std::vector<RenewedStops> renewedStops(const JoinPlace& place, const JoinPair& before,
                                                     const JoinPair& now);

} // namespace orvex
