#pragma once

#include "GuidedPoint.h"
#include "findSnap.h"

#include <cstdint>
#include <optional>

namespace orvex {

class Session;

// Which directions from the base point a point is kept to.
enum class PointDirection : std::uint8_t {
    any,
    square, // along the axes of the user's coordinate system
    steps,  // at multiples of an angle from its x axis, as soon as the cursor is near
};

// What a point asks for that goes beyond the cursor's place.
struct PointContext {
    std::optional<PlanPoint> base{}; // where the line to it begins
    SnapExclusion exclusion{};
};

// Turns a place of the cursor into the point that a click gives: a target of the snap, else a
// point in one of the directions, else the place itself. A point target wins over the directions;
// a line becomes its crossing with the ray.
class PointGuide {
public:
    bool isSnapOn = true;
    SnapModes modes = SnapModes::all();
    double aperture = 10.0; // pixels to each side
    PointDirection direction = PointDirection::any;
    double step = 45.0;              // degrees
    std::optional<SnapModes> word{}; // in place of modes and switch, for the next point

    // `modifiers` with Ctrl: without snap.
    GuidedPoint point(Session& session, const PointContext& context, PlanPoint cursor,
                      Qt::KeyboardModifiers modifiers);
    // Another point is asked, or other modes hold.
    void letGo() { m_held.reset(); }

private:
    [[nodiscard]] std::optional<PlanPoint> rayDirection(PlanPoint base, PlanPoint cursor,
                                                        double unitsPerPixel) const;
    [[nodiscard]] GuidedPoint onRay(PlanPoint base, PlanPoint ray, PlanPoint cursor,
                                    double unitsPerPixel) const;

    std::optional<SnapTarget> m_held;
};

} // namespace orvex
