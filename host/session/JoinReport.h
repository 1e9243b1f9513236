#pragma once

#include "JoinPlace.h"

#include <functional>
#include <vector>

struct KdDbStub;

namespace orvex {

// Where the multilines of a plan meet, as a value to show.
struct JoinReport {
    std::vector<JoinPlace> places;
    std::vector<JoinWall> walls;
    std::vector<KdDbStub*> mlines; // one for each wall
    bool isPlayed = false;         // false: what would be joined, and nothing is
    JoinOptions options;
};

// Told of what would be joined, at each question that may change it, and of what was.
using JoinWatcher = std::function<void(const JoinReport&)>;

} // namespace orvex
