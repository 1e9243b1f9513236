#pragma once

namespace mledit {

// The editing tools under their numbers, which the tool palette and CMlineEdit's callers use.
enum class Tool : int {
    closedCross = 1,
    openCross,
    mergedCross,
    closedTee,
    openTee,
    mergedTee,
    cornerJoint,
    addVertex,
    deleteVertex,
    cutSingle,
    cutAll,
    weldAll,
};

inline constexpr int kToolCount = 12;

} // namespace mledit
