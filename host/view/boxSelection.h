#pragma once

#include "Appearance.h"

namespace orvex {

// What a box in the plan selects. Edges count; an empty box selects nothing.

// Whether one box holds all of another that isn't empty.
bool contains(const PlanBox& box, const PlanBox& other);

// Whether a straight line from `a` to `b` has a point in the box.
bool touches(const PlanPoint& a, const PlanPoint& b, const PlanBox& box);

// Whether anything that the entity draws touches the box: a line that passes through it, a fill
// around it. Texts count by their boxes.
bool touches(const Appearance& appearance, const PlanBox& box);

} // namespace orvex
