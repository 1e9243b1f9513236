#include "pickDistance.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

// Narrows [enter, leave], a part of the line from + t * way, to where one coordinate is within the
// reach.
void narrow(double from, double way, double reach, double& enter, double& leave) {
    if (way == 0.0) {
        if (std::abs(from) > reach) {
            leave = -1.0;
        }
        return;
    }
    const double one = (-reach - from) / way;
    const double other = (reach - from) / way;
    enter = std::max(enter, std::min(one, other));
    leave = std::min(leave, std::max(one, other));
}

// Both for a piece whose coordinates are relative to the point.
bool passesThroughSquare(PlanPoint from, PlanPoint way, double reach) {
    double enter = 0.0;
    double leave = 1.0;
    narrow(from.x, way.x, reach, enter, leave);
    narrow(from.y, way.y, reach, enter, leave);
    return enter <= leave;
}

double distanceToOrigin(PlanPoint from, PlanPoint way) {
    const double square = way.x * way.x + way.y * way.y;
    double along = 0.0;
    if (square > 0.0) {
        along = std::clamp(-(from.x * way.x + from.y * way.y) / square, 0.0, 1.0);
    }
    return std::hypot(from.x + way.x * along, from.y + way.y * along);
}

} // namespace

std::optional<double> pickDistance(const Appearance& appearance, PlanPoint point, double reach) {
    std::optional<double> nearest;
    for (const Stroke& stroke : appearance.strokes) {
        if (stroke.role != StrokeRole::line) {
            continue;
        }
        for (std::size_t i = 0; i < stroke.points.size(); ++i) {
            const PlanPoint& begin = stroke.points[i];
            const bool isLast = i + 1 == stroke.points.size();
            if (isLast && i > 0) {
                break;
            }
            const PlanPoint& end = isLast ? begin : stroke.points[i + 1];
            const PlanPoint from{begin.x - point.x, begin.y - point.y};
            const PlanPoint way{end.x - begin.x, end.y - begin.y};
            if (passesThroughSquare(from, way, reach)) {
                const double distance = distanceToOrigin(from, way);
                nearest = std::min(nearest.value_or(distance), distance);
            }
        }
    }
    return nearest;
}

} // namespace orvex
