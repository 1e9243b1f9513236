#pragma once

#include "Appearance.h"

#include <QString>

#include <optional>
#include <vector>

struct KdDbStub;

namespace orvex {

// What a tool shows over the drawing and at the cursor while it asks for picks.
struct CanvasHints {
    std::vector<Appearance> lit;         // what was picked before
    std::optional<PlanPoint> firstPoint; // where, in case that matters
    // What a click would change, as it is and as it would be.
    std::vector<Appearance> before;
    std::vector<Appearance> after;
    bool changesTarget = false; // what a pick at the cursor would find is among them
    QString words;              // why a pick did nothing, or would do nothing
    bool flashes = false;       // the pick box, in the colour of the words
};

// What a pick means, and a note of it at the cursor.
struct PickTarget {
    KdDbStub* entity = nullptr;
    QString words{};
};

} // namespace orvex
