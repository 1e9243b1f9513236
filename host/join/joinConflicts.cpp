#include "joinConflicts.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <tuple>

namespace orvex {

namespace {

constexpr unsigned kNone = ~0U;

// Places that are in each other's way, directly or by others.
class Rivals {
public:
    explicit Rivals(std::size_t size) : m_parent(size), m_rival(size, kNone) {
        std::iota(m_parent.begin(), m_parent.end(), 0U);
    }
    unsigned find(unsigned i) {
        while (m_parent[i] != i) {
            m_parent[i] = m_parent[m_parent[i]];
            i = m_parent[i];
        }
        return i;
    }
    // The lower index stands for both, so that nothing depends on the order of calls.
    void unite(unsigned a, unsigned b) {
        if (a == b) {
            return;
        }
        const unsigned rootA = find(a);
        const unsigned rootB = find(b);
        m_parent[std::max(rootA, rootB)] = std::min(rootA, rootB);
        m_rival[a] = std::min(m_rival[a], b);
        m_rival[b] = std::min(m_rival[b], a);
    }
    // One that is directly in the way of a place that has any.
    [[nodiscard]] unsigned rival(unsigned i) const { return m_rival[i]; }

private:
    std::vector<unsigned> m_parent;
    std::vector<unsigned> m_rival;
};

// A place at an open end of a wall.
struct EndPlace {
    unsigned wall = 0;
    WallEnd end = WallEnd::none;
    unsigned place = 0;

    friend bool operator<(const EndPlace& a, const EndPlace& b) {
        return std::tie(a.wall, a.end, a.place) < std::tie(b.wall, b.end, b.place);
    }
    [[nodiscard]] bool sameEnd(const EndPlace& other) const {
        return wall == other.wall && end == other.end;
    }
};

bool isLive(const DraftPlace& draft) {
    return !draft.dropped;
}

std::vector<EndPlace> endPlaces(const std::vector<DraftPlace>& drafts) {
    std::vector<EndPlace> ends;
    for (unsigned i = 0; i < drafts.size(); ++i) {
        for (const JoinSide* side : {&drafts[i].place.first, &drafts[i].place.second}) {
            if (isLive(drafts[i]) && side->end != WallEnd::none) {
                ends.push_back({side->wall, side->end, i});
            }
        }
    }
    std::sort(ends.begin(), ends.end());
    return ends;
}

template <class Visit>
void forEachEnd(const std::vector<EndPlace>& ends, Visit&& visit) {
    for (std::size_t from = 0; from < ends.size();) {
        std::size_t to = from + 1;
        while (to < ends.size() && ends[to].sameEnd(ends[from])) {
            ++to;
        }
        visit(std::span<const EndPlace>(&ends[from], to - from));
        from = to;
    }
}

bool isStemAt(const DraftPlace& draft, const EndPlace& end) {
    return draft.place.kind == PlaceKind::tee && draft.place.first.wall == end.wall &&
           draft.place.first.end == end.end;
}

// The end of the kept part looks towards the place along this direction.
PlanVector towards(const JoinSide& side, std::span<const JoinWall> walls) {
    const PlanVector along = walls[side.wall].axis(side.segment).direction;
    return side.end == WallEnd::end ? along : along * -1.0;
}

// Two stems that come to one bar from both sides.
bool faceEachOther(const JoinPlace& a, const JoinPlace& b, std::span<const JoinWall> walls) {
    if (a.second.wall != b.second.wall || a.second.segment != b.second.segment) {
        return false;
    }
    const PlanVector bar = walls[a.second.wall].axis(a.second.segment).direction;
    return cross(bar, towards(a.first, walls)) * cross(bar, towards(b.first, walls)) < 0.0;
}

// The ends of a wall that a place may lie at: of two walls that overlap any of their segments.
std::array<WallEnd, 2> endsAt(const JoinPlace& place, const JoinSide& side,
                              std::span<const JoinWall> walls) {
    if (side.end != WallEnd::none || place.kind != PlaceKind::overlap) {
        return {side.end, WallEnd::none};
    }
    const JoinWall& wall = walls[side.wall];
    return {wall.endAtStart(side.segment), wall.endAtEnd(side.segment)};
}

// Facing stems that both go through the bar meet in it, too, which is no place of its own.
void dropFacingStems(std::vector<DraftPlace>& drafts, std::span<const JoinWall> walls) {
    const std::vector<EndPlace> ends = endPlaces(drafts);
    const auto teesAt = [&](const JoinPlace& place, const JoinSide& side) {
        std::vector<unsigned> tees;
        for (const WallEnd end : endsAt(place, side, walls)) {
            const EndPlace key{side.wall, end, 0};
            for (auto it = std::lower_bound(ends.begin(), ends.end(), key);
                 it != ends.end() && it->sameEnd(key); ++it) {
                if (isStemAt(drafts[it->place], *it) &&
                    drafts[it->place].place.reason == JoinReason::none) {
                    tees.push_back(it->place);
                }
            }
        }
        return tees;
    };
    for (DraftPlace& draft : drafts) {
        const std::vector<unsigned> others = teesAt(draft.place, draft.place.second);
        for (const unsigned a : teesAt(draft.place, draft.place.first)) {
            draft.dropped =
                draft.dropped || std::any_of(others.begin(), others.end(), [&](unsigned b) {
                    return faceEachOther(drafts[a].place, drafts[b].place, walls);
                });
        }
    }
}

// Of several bars the nearest is taken, if the stem doesn't run through another on its way.
void takeNearestBar(std::vector<DraftPlace>& drafts, std::span<const EndPlace> end) {
    std::vector<unsigned> tees;
    for (const EndPlace& entry : end) {
        if (isStemAt(drafts[entry.place], entry)) {
            tees.push_back(entry.place);
        }
    }
    if (tees.size() < 2 || tees.size() != end.size()) {
        return;
    }
    const auto nearer = [&](unsigned a, unsigned b) {
        return drafts[a].shortBy < drafts[b].shortBy;
    };
    const auto first = [&](unsigned a, unsigned b) {
        return drafts[a].nearLine < drafts[b].nearLine;
    };
    const unsigned nearest = *std::min_element(tees.begin(), tees.end(), nearer);
    if (nearest != *std::min_element(tees.begin(), tees.end(), first)) {
        return;
    }
    const double clear = drafts[nearest].shortBy + 1e-6 * drafts[nearest].half;
    for (const unsigned tee : tees) {
        if (tee != nearest && drafts[tee].shortBy <= clear) {
            return;
        }
    }
    for (const unsigned tee : tees) {
        drafts[tee].dropped = tee != nearest;
    }
}

JoinPair pairOf(const JoinPlace& place, std::span<const JoinWall> walls) {
    return {walls[place.first.wall], walls[place.second.wall]};
}

void uniteClaims(const std::vector<DraftPlace>& drafts, std::span<const JoinWall> walls,
                 Rivals& rivals) {
    std::vector<Claim> claims;
    for (unsigned i = 0; i < drafts.size(); ++i) {
        const JoinPlace& place = drafts[i].place;
        if (isLive(drafts[i]) && place.result != PlaceResult::left) {
            addClaims(place, i, pairOf(place, walls), claims);
        }
    }
    std::sort(claims.begin(), claims.end(), [](const Claim& a, const Claim& b) {
        return std::tie(a.wall, a.segment, a.element, a.from, a.place) <
               std::tie(b.wall, b.segment, b.element, b.from, b.place);
    });
    const Claim* widest = nullptr; // that reaches farthest of those so far on this line
    for (const Claim& claim : claims) {
        const bool same = widest != nullptr && widest->wall == claim.wall &&
                          widest->segment == claim.segment && widest->element == claim.element;
        // The line between two openings has to be seen.
        const double apart = 16.0 * joinTolerance(walls[claim.wall], walls[claim.wall]);
        if (same && claim.from < widest->to + apart) {
            rivals.unite(widest->place, claim.place);
        }
        if (!same || claim.to > widest->to) {
            widest = &claim;
        }
    }
}

std::vector<unsigned> wallsOf(const std::vector<DraftPlace>& drafts,
                              std::span<const unsigned> members) {
    std::vector<unsigned> walls;
    for (const unsigned member : members) {
        const auto& more = drafts[member].place.walls;
        walls.insert(walls.end(), more.begin(), more.end());
    }
    std::sort(walls.begin(), walls.end());
    walls.erase(std::unique(walls.begin(), walls.end()), walls.end());
    return walls;
}

bool lieTogether(const std::vector<DraftPlace>& drafts, std::span<const unsigned> members) {
    const PlanVector at = drafts[members.front()].place.at;
    double limit = 0.0;
    double spread = 0.0;
    for (const unsigned member : members) {
        const DraftPlace& draft = drafts[member];
        limit = std::max({limit, 2.0 * draft.half, 2.0 * std::min(draft.tolerance, draft.half)});
        spread = std::max(spread, (draft.place.at - at).length());
    }
    return spread <= limit;
}

void leaveTogether(std::vector<DraftPlace>& drafts, std::span<const unsigned> members,
                   const Rivals& rivals) {
    std::vector<unsigned> open;
    std::copy_if(members.begin(), members.end(), std::back_inserter(open), [&](unsigned member) {
        return drafts[member].place.result != PlaceResult::already;
    });
    const std::vector<unsigned> all = wallsOf(drafts, members);
    if (open.empty()) {
        return;
    }
    if (open.size() > 1 && all.size() > 2 && lieTogether(drafts, members)) {
        JoinPlace& node = drafts[open.front()].place;
        node.kind = PlaceKind::node;
        node.result = PlaceResult::left;
        node.reason = JoinReason::node;
        node.walls = all;
        for (const unsigned member : std::span(open).subspan(1)) {
            drafts[member].dropped = true;
        }
        return;
    }
    for (const unsigned member : open) {
        JoinPlace& place = drafts[member].place;
        if (place.result != PlaceResult::left) {
            place.result = PlaceResult::left;
            place.reason = JoinReason::reach;
            place.others = drafts[rivals.rival(member)].place.walls;
        }
    }
}

} // namespace

void resolveConflicts(std::vector<DraftPlace>& drafts, std::span<const JoinWall> walls) {
    dropFacingStems(drafts, walls);
    forEachEnd(endPlaces(drafts),
               [&](std::span<const EndPlace> end) { takeNearestBar(drafts, end); });

    Rivals rivals(drafts.size());
    forEachEnd(endPlaces(drafts), [&](std::span<const EndPlace> end) {
        for (const EndPlace& entry : end.subspan(1)) {
            rivals.unite(end.front().place, entry.place);
        }
    });
    uniteClaims(drafts, walls, rivals);

    std::vector<std::pair<unsigned, unsigned>> bySet; // set, member
    for (unsigned i = 0; i < drafts.size(); ++i) {
        if (isLive(drafts[i])) {
            bySet.emplace_back(rivals.find(i), i);
        }
    }
    std::sort(bySet.begin(), bySet.end());
    std::vector<unsigned> members;
    for (std::size_t i = 0; i < bySet.size(); ++i) {
        members.push_back(bySet[i].second);
        if (i + 1 == bySet.size() || bySet[i + 1].first != bySet[i].first) {
            if (members.size() > 1) {
                leaveTogether(drafts, members, rivals);
            }
            members.clear();
        }
    }
}

} // namespace orvex
