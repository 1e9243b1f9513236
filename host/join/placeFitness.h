#pragma once

#include "checkJoint.h"

namespace orvex {

// A stretch of an outer element that a joint needs for itself.
struct Claim {
    unsigned wall = 0;
    unsigned segment = 0;
    unsigned element = 0;
    double from = 0.0;
    double to = 0.0;
    unsigned place = 0;
};

// Looks at one place more closely, whose kind and sides are known: what the walls are like, whether
// it is joined already, and whether its joint has room. Sets result and reason.
void settlePlace(JoinPlace& place, const JoinPair& walls);

// What a place claims. Appends.
void addClaims(const JoinPlace& place, unsigned index, const JoinPair& walls,
               std::vector<Claim>& claims);

} // namespace orvex
