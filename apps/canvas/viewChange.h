#pragma once

#include "PlanView.h"

#include <vector>

namespace orvex {

// Which part of the plan a view shows.
struct ViewState {
    PlanPoint center;
    double height = 0.0; // drawing units

    friend bool operator==(const ViewState&, const ViewState&) = default;
};

ViewState stateOf(const PlanView& view);

// `factor` above 1 shows less of the plan. The plan stays where it is under the pixel.
ViewState zoomedAt(const PlanView& view, PlanPoint pixel, double factor);
// The plan follows by so many pixels, y downwards.
ViewState panned(const PlanView& view, PlanPoint pixels);
// All of the rectangle between two pixels, as large as it fits.
ViewState windowed(const PlanView& view, PlanPoint oneCorner, PlanPoint otherCorner);

// The views before, for going back. What follows upon each other as one movement (a pan, turns of
// the wheel without a pause) counts as one step.
class ViewHistory {
public:
    // Before the view leaves `state`.
    void leave(const ViewState& state, bool sameMovement = false);
    // Goes back; false when there is no view before.
    bool back(ViewState& state);
    void clear() { m_states.clear(); }

private:
    std::vector<ViewState> m_states;
};

} // namespace orvex
