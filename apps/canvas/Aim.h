#pragma once

#include "Appearance.h"

#include <cstdint>
#include <functional>
#include <optional>

struct KdDbStub;

namespace orvex {

// What a click on the canvas is taken for.
enum class AimKind : std::uint8_t {
    none,      // nothing asks: crosshair, the entity under it is highlighted
    entity,    // a pick is asked for: the cursor is the pick box
    point,     // a point is asked for: crosshair
    selection, // picks and windows are asked for: the cursor is the pick box
};

// What the next click is for, and what moves with the cursor until then.
struct Aim {
    AimKind kind{AimKind::none};
    int pickBox = 3;                 // pixels to each side of the cursor
    std::optional<PlanPoint> base{}; // a line from here to the cursor
    // What a point at the cursor would make, drawn in place of the line; null draws the line.
    std::function<Appearance(PlanPoint cursor)> preview{};
    // Of a selection: what counts in a window; null counts everything.
    std::function<bool(const KdDbStub& entity)> takes{};
};

} // namespace orvex
