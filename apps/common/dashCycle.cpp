#include "dashCycle.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvex {

namespace {

struct Part {
    bool drawn = true;
    double length = 0.0;
};

// Neighbours of one kind made one.
std::vector<Part> joinedParts(std::span<const double> dashes, double scale, double dot) {
    std::vector<Part> parts;
    for (const double dash : dashes) {
        const bool drawn = dash >= 0.0;
        const double length = dash == 0.0 ? dot : std::abs(dash) * scale;
        if (parts.empty() || parts.back().drawn != drawn) {
            parts.push_back({drawn, length});
        } else {
            parts.back().length += length;
        }
    }
    return parts;
}

} // namespace

double DashCycle::period() const {
    return std::accumulate(lengths.begin(), lengths.end(), 0.0);
}

DashCycle dashCycle(std::span<const double> dashes, double scale, double dot, double least) {
    std::vector<Part> parts = joinedParts(dashes, scale, dot);
    DashCycle cycle;
    if (parts.size() < 2) {
        return cycle;
    }
    // A line begins where the first part does, wherever that ends up in the cycle.
    double begin = 0.0;
    if (parts.front().drawn == parts.back().drawn) {
        // Of one kind round the turn, too: an odd number of parts.
        const Part first = parts.front();
        parts.erase(parts.begin());
        for (const Part& part : parts) {
            begin += part.length;
        }
        parts.back().length += first.length;
    }
    if (!parts.front().drawn) {
        begin -= parts.front().length;
        std::rotate(parts.begin(), parts.begin() + 1, parts.end());
    }
    for (const Part& part : parts) {
        cycle.lengths.push_back(part.length);
    }
    const double period = cycle.period();
    if (!std::isfinite(period) || period < least) {
        return {};
    }
    cycle.offset = begin < 0.0 ? begin + period : begin;
    return cycle;
}

} // namespace orvex
