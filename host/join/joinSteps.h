#pragma once

#include "JoinPlace.h"

namespace orvex {

// A pick for a tool: a point on a drawn stretch of one element, clear of every other.
struct JoinPick {
    unsigned wall = 0; // index into the plan's walls
    KdGePoint3d point; // world
    unsigned segment = 0;
    unsigned element = 0;
};

// An open end that is moved along its own segment before the tool is used, because the tool can't
// tell on which side of the bar's axis it lies.
struct JoinEndMove {
    JoinPick pick; // nearer to this end than to the other
    KdGePoint3d to;
};

struct JoinSteps {
    std::vector<JoinEndMove> moves; // with MLEND, in order, before the tool
    std::string_view tool;          // keyword of -MLEDIT: CC OC MC CT OT MT CJ
    JoinPick first;
    JoinPick second;
    // The pick circle's radius must stay below this, drawing units. The radius is
    // PICKBOX * view height / 1200 * sqrt(2), so the view's height is at most this * 1200 /
    // (PICKBOX * sqrt(2)); its center doesn't matter for picks by handle.
    double aperture = 0.0;
};

// What to do for one planned place with its walls as they are now; for a wall that meets itself
// both are the same object. What came out wrong may come out right with other picks, or with the
// end moved clear in any case: attempts are counted from 0. Nothing when no line is left to pick.
inline constexpr unsigned kJoinAttempts = 12;
[[nodiscard]] std::optional<JoinSteps> joinSteps(const JoinPlace& place, const JoinWall& first,
                                                 const JoinWall& second, unsigned attempt = 0);

} // namespace orvex
