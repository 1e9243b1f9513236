#pragma once

#include "PlanView.h"

#include <vector>

namespace orvex {

// Which part of the plan a view shows.
struct ViewPlace {
    PlanPoint center;
    double height = 0.0; // drawing units

    friend bool operator==(const ViewPlace&, const ViewPlace&) = default;
};

ViewPlace placeOf(const PlanView& view);

// `factor` above 1 shows less of the plan. The plan stays where it is under the pixel.
ViewPlace zoomedAt(const PlanView& view, PlanPoint pixel, double factor);
// The plan follows by so many pixels, y downwards.
ViewPlace panned(const PlanView& view, PlanPoint pixels);
// All of the rectangle between two pixels, as large as it fits.
ViewPlace windowed(const PlanView& view, PlanPoint oneCorner, PlanPoint otherCorner);

// The views before, for going back. What follows upon each other as one movement (a pan, turns of
// the wheel without a pause) counts as one step.
class ViewHistory {
public:
    // Before the view leaves `place`.
    void leave(const ViewPlace& place, bool sameMovement = false);
    // Goes back; false when there is no view before.
    bool back(ViewPlace& place);
    void clear() { m_places.clear(); }

private:
    std::vector<ViewPlace> m_places;
};

} // namespace orvex
