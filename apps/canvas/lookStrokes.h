#pragma once

#include "LinePainter.h"

#include <vector>

namespace orvex {

inline constexpr double kLeastDashPeriod = 3.0; // pixels; finer dashes look grey

// Draws the lines of a look. `toPixels` takes a place of the plan to the painter's pixels, where a
// drawing unit is `pixelsOfUnit` long.
template <class ToPixels>
void drawStrokes(LinePainter& lines, const Appearance& look, double pixelsOfUnit, int lineWidth,
                 ToPixels&& toPixels) {
    std::vector<PlanPoint> points;
    for (const Stroke& stroke : look.strokes) {
        points.clear();
        for (const PlanPoint& point : stroke.points) {
            points.push_back(toPixels(point));
        }
        DashCycle cycle;
        if (stroke.dashes > 0 && stroke.dashes <= look.dashPatterns.size()) {
            cycle = dashCycle(look.dashPatterns[stroke.dashes - 1], pixelsOfUnit, lineWidth,
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
