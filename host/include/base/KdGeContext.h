#pragma once

#include "KdGeTol.h"

// The host's global geometry settings. The tolerance is constant: results never depend on what
// another part of the process did before.
struct KdGeContext {
    static constexpr KdGeTol gTol{};
};
