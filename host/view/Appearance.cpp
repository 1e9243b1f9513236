#include "Appearance.h"

#include "labelBox.h"

#include <algorithm>

namespace orvex {

void PlanBox::include(const PlanPoint& point) {
    if (isEmpty()) {
        low = high = point;
        return;
    }
    low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y)};
}

void PlanBox::include(const PlanBox& box) {
    if (!box.isEmpty()) {
        include(box.low);
        include(box.high);
    }
}

PlanBox Appearance::box() const {
    PlanBox result;
    for (const Fill& fill : fills) {
        for (const PlanPoint& point : fill.outline) {
            result.include(point);
        }
    }
    for (const Stroke& stroke : strokes) {
        for (const PlanPoint& point : stroke.points) {
            result.include(point);
        }
    }
    for (const Label& label : labels) {
        result.include(labelBox(label));
    }
    return result;
}

} // namespace orvex
