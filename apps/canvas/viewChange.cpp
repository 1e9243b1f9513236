#include "viewChange.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr std::size_t kMostPlaces = 100;

} // namespace

ViewPlace placeOf(const PlanView& view) {
    return {view.center(), view.viewHeight()};
}

ViewPlace zoomedAt(const PlanView& view, PlanPoint pixel, double factor) {
    const PlanPoint fixed = view.toPlan(pixel);
    const PlanPoint center = view.center();
    return {{fixed.x + (center.x - fixed.x) / factor, fixed.y + (center.y - fixed.y) / factor},
            view.viewHeight() / factor};
}

ViewPlace panned(const PlanView& view, PlanPoint pixels) {
    const PlanPoint center = view.center();
    return {
        {center.x - pixels.x * view.unitsPerPixel(), center.y + pixels.y * view.unitsPerPixel()},
        view.viewHeight()};
}

ViewPlace windowed(const PlanView& view, PlanPoint oneCorner, PlanPoint otherCorner) {
    const PlanPoint middle{(oneCorner.x + otherCorner.x) / 2, (oneCorner.y + otherCorner.y) / 2};
    const double width = std::abs(otherCorner.x - oneCorner.x) / view.width();
    const double height = std::abs(otherCorner.y - oneCorner.y) / view.height();
    const double part = std::max(width, height); // of the view, which the window becomes
    return {view.toPlan(middle), view.viewHeight() * part};
}

void ViewHistory::leave(const ViewPlace& place, bool sameMovement) {
    if (sameMovement || (!m_places.empty() && m_places.back() == place)) {
        return;
    }
    if (m_places.size() == kMostPlaces) {
        m_places.erase(m_places.begin());
    }
    m_places.push_back(place);
}

bool ViewHistory::back(ViewPlace& place) {
    if (m_places.empty()) {
        return false;
    }
    place = m_places.back();
    m_places.pop_back();
    return true;
}

} // namespace orvex
