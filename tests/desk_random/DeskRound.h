#pragma once

#include "TimedApplication.h"

#include <QString>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orvex::testing {

// What a round is to be.
struct RoundPlan {
    std::uint64_t seed = 1;
    int events = 300;
    std::filesystem::path drawing; // empty: a new one
    double patience = 1.0;         // seconds in which an event has to be handled
    std::FILE* log = nullptr;      // of the events; null for none
};

// What came of it.
struct RoundResult {
    std::vector<std::string> faults; // empty where all is well
    int events = 0;
    std::size_t steps = 0;   // of undo, that were there at the checks
    double longest = 0.0;    // seconds
    bool isReplayed = false; // the history was played; false where a dialog changed styles
};

// A random user in a window on a copy of a drawing. From time to time everything is ended and taken
// back: the drawing has to be the file's own bytes, and after redo what it was before. At the end
// the history is played by a session without a window: the same bytes.
RoundResult playRound(TimedApplication& application, const RoundPlan& plan);

} // namespace orvex::testing
