#pragma once

#include "SnapMode.h"
#include "snapScan.h"

#include <functional>

namespace orvex {

// What a window's points are drawn to. A script sets it in vain: its points are where it says.
struct SnapMemory {
    bool isOn = true;
    SnapModes modes = SnapModes::all();
    SnapExclusion inHand;          // what moves with the point that is asked
    std::function<void()> changed; // by a command; a window follows. May be null
};

} // namespace orvex
