#include "viewChange.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr std::size_t kMostStates = 100;

} // namespace

ViewState stateOf(const PlanView& view) {
    return {view.center(), view.viewHeight()};
}

ViewState zoomedAt(const PlanView& view, PlanPoint pixel, double factor) {
    const PlanPoint fixed = view.toPlan(pixel);
    const PlanPoint center = view.center();
    return {{fixed.x + (center.x - fixed.x) / factor, fixed.y + (center.y - fixed.y) / factor},
            view.viewHeight() / factor};
}

ViewState panned(const PlanView& view, PlanPoint pixels) {
    const PlanPoint center = view.center();
    return {
        {center.x - pixels.x * view.unitsPerPixel(), center.y + pixels.y * view.unitsPerPixel()},
        view.viewHeight()};
}

ViewState windowed(const PlanView& view, PlanPoint oneCorner, PlanPoint otherCorner) {
    const PlanPoint middle{(oneCorner.x + otherCorner.x) / 2, (oneCorner.y + otherCorner.y) / 2};
    const double width = std::abs(otherCorner.x - oneCorner.x) / view.width();
    const double height = std::abs(otherCorner.y - oneCorner.y) / view.height();
    const double part = std::max(width, height); // of the view, which the window becomes
    return {view.toPlan(middle), view.viewHeight() * part};
}

void ViewHistory::leave(const ViewState& state, bool sameMovement) {
    if (sameMovement || (!m_states.empty() && m_states.back() == state)) {
        return;
    }
    if (m_states.size() == kMostStates) {
        m_states.erase(m_states.begin());
    }
    m_states.push_back(state);
}

bool ViewHistory::back(ViewState& state) {
    if (m_states.empty()) {
        return false;
    }
    state = m_states.back();
    m_states.pop_back();
    return true;
}

} // namespace orvex
