#include "joinOrder.h"

#include <algorithm>
#include <numeric>
#include <queue>

namespace orvex {

namespace {

bool isTee(const JoinPlace& place) {
    return place.result == PlaceResult::planned && place.kind == PlaceKind::tee;
}

// Walls by when their own tees are made: a number for each, bars before their stems.
std::vector<unsigned> wallRanks(std::span<const JoinPlace> places,
                                std::span<const JoinWall> walls) {
    std::vector<std::vector<unsigned>> stems(walls.size()); // by bar
    std::vector<unsigned> waiting(walls.size(), 0);         // for so many bars
    for (const JoinPlace& place : places) {
        if (isTee(place) && place.first.wall != place.second.wall) {
            stems[place.second.wall].push_back(place.first.wall);
            ++waiting[place.first.wall];
        }
    }
    std::vector<unsigned> byHandle(walls.size());
    std::iota(byHandle.begin(), byHandle.end(), 0U);
    std::sort(byHandle.begin(), byHandle.end(),
              [&](unsigned a, unsigned b) { return walls[a].handle() < walls[b].handle(); });

    constexpr unsigned kUnranked = ~0U;
    std::vector<unsigned> ranks(walls.size(), kUnranked);
    std::queue<unsigned> ready;
    for (const unsigned wall : byHandle) {
        if (waiting[wall] == 0) {
            ready.push(wall);
        }
    }
    unsigned rank = 0;
    for (std::size_t lowest = 0; lowest < byHandle.size() || !ready.empty();) {
        if (ready.empty()) {
            // All that is left waits in rings, or after one.
            ready.push(byHandle[lowest++]);
        }
        const unsigned wall = ready.front();
        ready.pop();
        if (ranks[wall] != kUnranked) {
            continue;
        }
        ranks[wall] = rank++;
        for (const unsigned stem : stems[wall]) {
            if (--waiting[stem] == 0) {
                ready.push(stem);
            }
        }
    }
    return ranks;
}

} // namespace

std::vector<unsigned> joinOrder(std::span<const JoinPlace> places,
                                std::span<const JoinWall> walls) {
    const std::vector<unsigned> ranks = wallRanks(places, walls);
    const auto stage = [&](unsigned i) {
        switch (places[i].kind) {
        case PlaceKind::corner:
            return std::pair(0U, 0U);
        case PlaceKind::tee:
            return std::pair(1U, ranks[places[i].first.wall]);
        default:
            return std::pair(2U, 0U);
        }
    };
    std::vector<unsigned> order;
    for (unsigned i = 0; i < places.size(); ++i) {
        if (places[i].result == PlaceResult::planned) {
            order.push_back(i);
        }
    }
    std::stable_sort(order.begin(), order.end(),
                     [&](unsigned a, unsigned b) { return stage(a) < stage(b); });
    return order;
}

} // namespace orvex
