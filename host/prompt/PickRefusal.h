#pragma once

#include <cstdint>

namespace orvex {

// Why a pick did nothing. What users read of each is in the session's refusalText.h.
enum class PickRefusal : std::uint8_t {
    nothingHere,
    lockedLayer,
    noMultiline,
    closedMultiline, // which some tools don't take
    sameMultiline,   // two were asked for
    otherMultiline,  // the one picked first was asked for
    noCrossing,
    noMatch, // the tool finds none of its lines where it was picked, and would take an earlier pick
    nothingChanged,
};

} // namespace orvex
