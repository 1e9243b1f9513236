#pragma once

#include "JoinPlace.h"

namespace orvex {

// Where the walls of a plan meet, and what is to become of each place.
//
// How a plan is played:
//   1. walls: one JoinWall for each multiline that takes part, in drawing order.
//   2. planJoins(walls, options). Places whose result isn't `planned` are done with.
//   3. for each index in `order`: make the two walls anew from what they are now ("before"), ask
//      joinSteps (joinSteps.h), play the moves and the tool, make the walls anew ("now"), and
//      - give up where keepsSegments (checkJoint.h) says no: as where isJoined does;
//      - lay elements right where keepsLines (checkJoint.h) says no;
//      - set the stops that renewedStops (checkJoint.h) gives; what is as it should be gives none,
//        so that a joint whose lines are kept and that leaves no stops to renew has disturbed
//        nothing else on either wall;
//      - ask isJoined; no: take everything back, result `left`, reason `notRight`.
//   4. at the end isJoined again for every place that was joined.
// Indices of walls stay those of the plan throughout; the joints move ends and change lists, they
// neither add nor drop a vertex.
struct JoinPlan {
    std::vector<JoinPlace> places; // by first wall, its segment, second wall, its segment
    std::vector<unsigned> order;   // the planned ones: corners, tees (bar before stem), crosses
};

// Pure. Takes as long as walls and places are many, also with thousands of stems on one bar.
[[nodiscard]] JoinPlan planJoins(std::span<const JoinWall> walls, const JoinOptions& options);

} // namespace orvex
