#pragma once

#include "Appearance.h"

#include <optional>
#include <vector>

namespace orvex {

// A straight piece of the plan, or the part of a circle over it.
struct SnapLine {
    struct Circle {
        PlanPoint center;
        double radius = 0.0;
    };
    PlanPoint from;
    PlanPoint to;
    std::optional<Circle> circle{};
};

double distance(PlanPoint a, PlanPoint b);
PlanPoint between(PlanPoint a, PlanPoint b); // in the middle

// The circle that all points of a chain lie on, but for rounding; nothing where there is none.
std::optional<SnapLine::Circle> circleThrough(const PlanPoint* points, std::size_t count);

// The point of the line that is nearest to a place.
PlanPoint nearestOn(const SnapLine& line, PlanPoint place);
// Where the line is met at a right angle from a place; not beyond its ends.
std::vector<PlanPoint> feetOn(const SnapLine& line, PlanPoint place);
// Where two lines cross or touch; lines that are horizontal, vertical or end there keep those
// coordinates to the bit. Parallel ones don't.
std::optional<PlanPoint> crossingOf(const SnapLine& a, const SnapLine& b);
// Where a ray from `origin` meets the line.
std::optional<PlanPoint> crossingOnRay(PlanPoint origin, PlanPoint direction, const SnapLine& line);

} // namespace orvex
