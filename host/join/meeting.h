#pragma once

#include "JoinPlace.h"
#include "PlanSegment.h"

namespace orvex {

// How two segments meet, or nothing. Only from where their strips lie: what the lists draw, and
// whether the joint has room, is asked later.
//
// Distances count along a segment's own direction, at the middle between its outer lines: an end is
// short by its distance to the nearer outer line of the other, over by that to the farther one. An
// end that is short or over by at most `tolerance`, or in between, is at the other; a wall that
// goes on past both by more than `tolerance` (past both at all, where it then bends) passes.
//   both pass: cross; one has an end there, the other passes: tee; both have an end there: corner.
// In corners that are nearly in one line the ends themselves have to be near each other, since
// their strips, produced, overlap far off. Parallels are an overlap where they really overlap, or
// where ends face each other within the tolerance. Strips that overlap always meet, if only to be
// left.
struct Meeting {
    PlaceKind kind = PlaceKind::cross;
    JoinReason reason = JoinReason::none; // set: the place is left
    JoinSide a;
    JoinSide b;
    PlanVector at;
    double shortBy = 0.0;    // tee: how far the stem's end is from the strip, 0 within it
    double nearLine = 0.0;   // tee: distance of the bar from the stem's other end
    unsigned bendVertex = 0; // reason bend: of which wall is told by `bendWall`
    unsigned bendWall = 0;
};

[[nodiscard]] std::optional<Meeting> meeting(const PlanSegment& a, const PlanSegment& b,
                                             double tolerance);

// How far from an open end, in any direction, another end or strip can lie and still meet it.
[[nodiscard]] double endReach(const PlanSegment& segment, std::optional<double> tolerance);

} // namespace orvex
