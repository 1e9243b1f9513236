#include "PlanView.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr double kEmptyViewHeight = 10.0; // drawing units, where there is nothing to see
constexpr double kMargin = 1.1;           // of the view to what it shows

bool isUsableLength(double length) {
    return std::isfinite(length) && length > 0.0;
}

} // namespace

PlanView::PlanView(int widthPixels, int heightPixels)
    : m_width(std::max(widthPixels, 1)), m_height(std::max(heightPixels, 1)) {}

void PlanView::resize(int widthPixels, int heightPixels) {
    m_width = std::max(widthPixels, 1);
    m_height = std::max(heightPixels, 1);
}

void PlanView::setView(PlanPoint center, double viewHeight) {
    const bool usable = std::isfinite(center.x) && std::isfinite(center.y) &&
                        isUsableLength(viewHeight) && isUsableLength(viewHeight / m_height);
    if (usable) {
        m_center = center;
        m_viewHeight = viewHeight;
    }
}

void PlanView::zoomTo(const PlanBox& extents) {
    if (extents.isEmpty()) {
        setView({0.0, 0.0}, kEmptyViewHeight);
        return;
    }
    const double width = extents.high.x - extents.low.x;
    const double height = extents.high.y - extents.low.y;
    const double wanted = kMargin * std::max(height, width * m_height / m_width);
    // Halves first: the sum of two far corners might be out of range.
    const PlanPoint middle{extents.low.x + width / 2, extents.low.y + height / 2};
    setView(middle, wanted > 0.0 ? wanted : kEmptyViewHeight);
}

PlanPoint PlanView::toPixels(PlanPoint plan) const {
    return {m_width / 2.0 + (plan.x - m_center.x) / unitsPerPixel(),
            m_height / 2.0 - (plan.y - m_center.y) / unitsPerPixel()};
}

PlanPoint PlanView::toPlan(PlanPoint pixels) const {
    return {m_center.x + (pixels.x - m_width / 2.0) * unitsPerPixel(),
            m_center.y - (pixels.y - m_height / 2.0) * unitsPerPixel()};
}

void PlanView::pixelsToDisplayUnits(double& length, void*, void*, int) const {
    const double units = length * unitsPerPixel();
    length = isUsableLength(units) ? units : unitsPerPixel();
}

void PlanView::worldToDisplay(const double* world, double* display) const {
    display[0] = world[0];
    display[1] = world[1];
}

} // namespace orvex
