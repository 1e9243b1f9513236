#pragma once

#include "Appearance.h"
#include "SnapMode.h"

#include <QString>

#include <functional>
#include <optional>

namespace orvex {

// What a click gives in place of the cursor's own place.
struct GuidedPoint {
    PlanPoint at;
    bool isExact = false;                 // not to be rounded: it is a target's own place
    std::optional<SnapMode> marker{};     // the sign at the point
    QString name{};                       // beside the point
    std::optional<PlanPoint> attractor{}; // what drew the cursor, where that is another place
    std::optional<PlanPoint> rayFrom{};   // the point was kept on a ray that begins here

    friend bool operator==(const GuidedPoint&, const GuidedPoint&) = default;
};

// Asked once for each place of the cursor that is shown or clicked, in the order of the movement.
using Guide = std::function<GuidedPoint(PlanPoint cursor, Qt::KeyboardModifiers modifiers)>;

} // namespace orvex
