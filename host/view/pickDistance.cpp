#include "pickDistance.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

// Narrows [enter, leave], a part of the line from + t * direction, to where one coordinate is
// within the reach.
void narrow(double from, double direction, double reach, double& enter, double& leave) {
    if (direction == 0.0) {
        if (std::abs(from) > reach) {
            leave = -1.0;
        }
        return;
    }
    const double one = (-reach - from) / direction;
    const double other = (reach - from) / direction;
    enter = std::max(enter, std::min(one, other));
    leave = std::min(leave, std::max(one, other));
}

// Both for a piece whose coordinates are relative to the point.
bool passesThroughSquare(PlanPoint from, PlanPoint direction, double reach) {
    double enter = 0.0;
    double leave = 1.0;
    narrow(from.x, direction.x, reach, enter, leave);
    narrow(from.y, direction.y, reach, enter, leave);
    return enter <= leave;
}

double distanceToOrigin(PlanPoint from, PlanPoint direction) {
    const double square = direction.x * direction.x + direction.y * direction.y;
    double along = 0.0;
    if (square > 0.0) {
        along = std::clamp(-(from.x * direction.x + from.y * direction.y) / square, 0.0, 1.0);
    }
    return std::hypot(from.x + direction.x * along, from.y + direction.y * along);
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
            const PlanPoint direction{end.x - begin.x, end.y - begin.y};
            if (passesThroughSquare(from, direction, reach)) {
                const double distance = distanceToOrigin(from, direction);
                nearest = std::min(nearest.value_or(distance), distance);
            }
        }
    }
    return nearest;
}

} // namespace orvex
