#pragma once

#include "Appearance.h"

#include <span>
#include <vector>

namespace orvex {

// A part of a chain, and how long the chain was before it.
struct ChainPart {
    std::vector<PlanPoint> points;
    double before = 0.0;
};

// The parts of a chain inside of a frame. Painters work with numbers that are too small for a plan
// seen from very near, and take for ever over dashes that nobody sees.
std::vector<ChainPart> clipChain(std::span<const PlanPoint> chain, const PlanBox& frame);

} // namespace orvex
