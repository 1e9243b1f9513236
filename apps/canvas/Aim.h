#pragma once

#include "Appearance.h"
#include "GroupGhost.h"
#include "GuidedPoint.h"

#include <cstdint>
#include <functional>
#include <optional>

struct KdDbStub;

namespace orvex {

// What a click on the canvas is taken for.
enum class AimKind : std::uint8_t {
    none,      // nothing asks: crosshair, the entity under it is highlighted, a click selects
    entity,    // a pick is asked for: the cursor is the pick box
    point,     // a point is asked for: crosshair
    selection, // picks and windows are asked for: the cursor is the pick box
};

// What the next click is for, and what moves with the cursor until then.
struct Aim {
    AimKind kind{AimKind::none};
    int pickBox = 3;                 // pixels to each side of the cursor
    std::optional<PlanPoint> base{}; // a line from here to the guided point
    // What that point would make, drawn in place of the line; null draws the line.
    std::function<Appearance(PlanPoint point)> preview{};
    // What moves as one with that point, drawn beside the line.
    AimGroup group{};
    // Where a click of the aim `point` goes; null takes the cursor's place.
    Guide guide{};
    // Of a selection: what counts in a window; null counts everything.
    std::function<bool(const KdDbStub& entity)> takes{};
};

} // namespace orvex
