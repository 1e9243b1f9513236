#include "clipChain.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

// The part of a piece that lies inside, from `enter` to `leave` of 1; nothing when enter > leave.
struct Inside {
    double enter = 0.0;
    double leave = 1.0;

    void narrow(double from, double direction, double low, double high) {
        if (direction == 0.0) {
            if (from < low || from > high) {
                leave = -1.0;
            }
            return;
        }
        const double one = (low - from) / direction;
        const double other = (high - from) / direction;
        enter = std::max(enter, std::min(one, other));
        leave = std::min(leave, std::max(one, other));
    }
};

} // namespace

std::vector<ChainPart> clipChain(std::span<const PlanPoint> chain, const PlanBox& frame) {
    std::vector<ChainPart> runs;
    double passed = 0.0;
    bool running = false;
    for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
        const PlanPoint& from = chain[i];
        const PlanPoint direction{chain[i + 1].x - from.x, chain[i + 1].y - from.y};
        const double length = std::hypot(direction.x, direction.y);
        Inside inside;
        inside.narrow(from.x, direction.x, frame.low.x, frame.high.x);
        inside.narrow(from.y, direction.y, frame.low.y, frame.high.y);
        const auto at = [&](double part) {
            return part >= 1.0
                       ? chain[i + 1]
                       : PlanPoint{from.x + direction.x * part, from.y + direction.y * part};
        };
        if (inside.enter <= inside.leave) {
            if (!running || inside.enter > 0.0) {
                runs.push_back({{at(inside.enter)}, passed + inside.enter * length});
            }
            runs.back().points.push_back(at(inside.leave));
        }
        running = inside.enter <= inside.leave && inside.leave >= 1.0;
        passed += length;
    }
    if (chain.size() == 1) {
        const PlanPoint& dot = chain.front();
        if (dot.x >= frame.low.x && dot.x <= frame.high.x && dot.y >= frame.low.y &&
            dot.y <= frame.high.y) {
            runs.push_back({{dot, dot}, 0.0});
        }
    }
    return runs;
}

} // namespace orvex
