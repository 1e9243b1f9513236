#pragma once

#include "JoinPlace.h"

namespace orvex {

// The planned places in the order in which they are played: corners, then tees, then crosses, which
// move no vertex. A wall's own tees come before those that open it, so that bars are where they
// will stay when their stems arrive; a ring of walls, each ending on the next, is broken at its
// lowest handle. What is left open is decided by the places' own order.
[[nodiscard]] std::vector<unsigned> joinOrder(std::span<const JoinPlace> places,
                                              std::span<const JoinWall> walls);

} // namespace orvex
