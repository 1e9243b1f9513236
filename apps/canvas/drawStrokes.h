#pragma once

#include "LinePainter.h"

#include <vector>

namespace orvex {

inline constexpr double kLeastDashPeriod = 3.0; // pixels; finer dashes look grey

// Draws the lines of an appearance. `toPixels` takes a point of the plan to the painter's pixels,
// where a drawing unit is `pixelsOfUnit` long.
template <class ToPixels>
void drawStrokes(LinePainter& lines, const Appearance& appearance, double pixelsOfUnit,
                 int lineWidth, ToPixels&& toPixels) {
    std::vector<PlanPoint> points;
    for (const Stroke& stroke : appearance.strokes) {
        points.clear();
        for (const PlanPoint& point : stroke.points) {
            points.push_back(toPixels(point));
        }
        DashCycle cycle;
        if (stroke.dashes > 0 && stroke.dashes <= appearance.dashPatterns.size()) {
            cycle = dashCycle(appearance.dashPatterns[stroke.dashes - 1], pixelsOfUnit, lineWidth,
                              kLeastDashPeriod);
        }
        if (cycle.lengths.empty()) {
            lines.chain(points, stroke.rgb);
        } else {
            lines.dashedChain(points, stroke.rgb, cycle);
        }
    }
}

} // namespace orvex
