#include "boxSelection.h"

#include "labelBox.h"

#include <algorithm>
#include <array>

namespace orvex {

namespace {

bool holds(const PlanBox& box, const PlanPoint& point) {
    return point.x >= box.low.x && point.x <= box.high.x && point.y >= box.low.y &&
           point.y <= box.high.y;
}

bool meets(const PlanBox& a, const PlanBox& b) {
    return !a.isEmpty() && !b.isEmpty() && a.low.x <= b.high.x && b.low.x <= a.high.x &&
           a.low.y <= b.high.y && b.low.y <= a.high.y;
}

double side(const PlanPoint& a, const PlanPoint& b, const PlanPoint& p) {
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

bool chainTouches(const std::vector<PlanPoint>& points, const PlanBox& box, bool closed) {
    if (points.size() == 1) {
        return holds(box, points.front());
    }
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (touches(points[i - 1], points[i], box)) {
            return true;
        }
    }
    return closed && points.size() > 2 && touches(points.back(), points.front(), box);
}

// By the crossings of a ray to the right.
bool isInside(const PlanPoint& point, const std::vector<PlanPoint>& outline) {
    bool inside = false;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const PlanPoint& a = outline[i];
        const PlanPoint& b = outline[(i + 1) % outline.size()];
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) {
            inside = !inside;
        }
    }
    return inside;
}

} // namespace

bool contains(const PlanBox& box, const PlanBox& other) {
    return !box.isEmpty() && !other.isEmpty() && holds(box, other.low) && holds(box, other.high);
}

// A line misses a box whose span it meets only where all corners lie on one side of it.
bool touches(const PlanPoint& a, const PlanPoint& b, const PlanBox& box) {
    PlanBox span;
    span.include(a);
    span.include(b);
    if (!meets(span, box)) {
        return false;
    }
    const std::array<double, 4> sides{side(a, b, box.low), side(a, b, {box.high.x, box.low.y}),
                                      side(a, b, box.high), side(a, b, {box.low.x, box.high.y})};
    const auto [least, most] = std::minmax_element(sides.begin(), sides.end());
    return *least <= 0.0 && *most >= 0.0;
}

bool touches(const Appearance& appearance, const PlanBox& box) {
    if (box.isEmpty()) {
        return false;
    }
    return std::any_of(
               appearance.strokes.begin(), appearance.strokes.end(),
               [&](const Stroke& stroke) { return chainTouches(stroke.points, box, false); }) ||
           std::any_of(appearance.fills.begin(), appearance.fills.end(),
                       [&](const Fill& fill) {
                           return chainTouches(fill.outline, box, true) ||
                                  isInside(box.low, fill.outline);
                       }) ||
           std::any_of(appearance.labels.begin(), appearance.labels.end(),
                       [&](const Label& label) { return meets(labelBox(label), box); });
}

} // namespace orvex
