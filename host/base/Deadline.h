#pragma once

#include <chrono>

namespace orvex {

// When work that is done in steps gives way to its caller; max() is never.
using Deadline = std::chrono::steady_clock::time_point;

inline bool isOver(Deadline deadline) {
    return deadline != Deadline::max() && std::chrono::steady_clock::now() >= deadline;
}

} // namespace orvex
