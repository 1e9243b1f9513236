#include "planJoins.h"

#include "joinConflicts.h"
#include "joinOrder.h"
#include "meeting.h"
#include "segmentPairs.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace orvex {

namespace {

bool areNeighbours(const JoinWall& wall, unsigned a, unsigned b, std::span<const PlanSegment> all,
                   unsigned indexA, unsigned indexB) {
    // Segments without length are left out of `all`, so that what they part are neighbours as well.
    const bool adjacent = indexB == indexA + 1;
    const bool aroundEnd = wall.isClosed() &&
                           (indexA == 0 || all[indexA - 1].wall != all[indexA].wall) &&
                           (indexB + 1 == all.size() || all[indexB + 1].wall != all[indexB].wall);
    return a == b || adjacent || aroundEnd;
}

// Of crossing walls the wider stays on top, of equal ones the one drawn first. The tools cut the
// first pick. A ring's closing segment is found as second only; where it makes no difference to the
// outline the other one goes first.
void orderCross(JoinPlace& place, std::span<const JoinWall> walls) {
    const auto half = [&](const JoinSide& side) {
        return walls[side.wall].halfWidth(side.segment);
    };
    const double a = half(place.first);
    const double b = half(place.second);
    const bool equal = std::abs(a - b) <= 1e-9 * std::max(a, b);
    // `first` was drawn first.
    if (equal || a > b) {
        std::swap(place.first, place.second);
    }
    const auto isClosing = [&](const JoinSide& side) {
        const JoinWall& wall = walls[side.wall];
        return wall.isClosed() && side.segment + 1 == wall.vertexCount();
    };
    if (place.style != JoinKind::closed && isClosing(place.first) && !isClosing(place.second)) {
        std::swap(place.first, place.second);
    }
}

DraftPlace draftOf(const Meeting& meeting, double tolerance, const JoinOptions& options,
                   std::span<const JoinWall> walls) {
    DraftPlace draft;
    JoinPlace& place = draft.place;
    place.kind = meeting.kind;
    place.reason = meeting.reason;
    place.result = meeting.reason == JoinReason::none ? PlaceResult::planned : PlaceResult::left;
    place.style = meeting.kind == PlaceKind::cross ? options.cross
                  : meeting.kind == PlaceKind::tee ? options.tee
                                                   : JoinKind::open;
    place.at = meeting.at;
    place.first = meeting.a;
    place.second = meeting.b;
    place.walls = {meeting.a.wall, meeting.b.wall};
    std::sort(place.walls.begin(), place.walls.end());
    place.walls.erase(std::unique(place.walls.begin(), place.walls.end()), place.walls.end());
    place.height = walls[place.walls.front()].height();
    if (place.kind == PlaceKind::cross) {
        orderCross(place, walls);
    }
    draft.tolerance = tolerance;
    draft.half = std::max(walls[meeting.a.wall].halfWidth(meeting.a.segment),
                          walls[meeting.b.wall].halfWidth(meeting.b.segment));
    draft.shortBy = meeting.shortBy;
    draft.nearLine = meeting.nearLine;
    return draft;
}

// Two walls that run along each other are told once, and a bend that lies on another wall as well.
class ToldOnce {
public:
    [[nodiscard]] bool isNew(const Meeting& meeting) {
        const auto walls = std::minmax(meeting.a.wall, meeting.b.wall);
        if (meeting.kind == PlaceKind::overlap) {
            return m_overlaps.emplace(walls.first, walls.second).second;
        }
        if (meeting.reason == JoinReason::bend) {
            return m_bends.emplace(walls.first, walls.second, meeting.bendWall, meeting.bendVertex)
                .second;
        }
        return true;
    }
    [[nodiscard]] bool overlap(const JoinPlace& place) const {
        return m_overlaps.contains({place.walls.front(), place.walls.back()});
    }

private:
    std::set<std::pair<unsigned, unsigned>> m_overlaps;
    std::set<std::tuple<unsigned, unsigned, unsigned, unsigned>> m_bends;
};

std::vector<DraftPlace> findPlaces(std::span<const JoinWall> walls, const JoinOptions& options) {
    const std::vector<PlanSegment> segments = planSegments(walls);
    std::vector<DraftPlace> drafts;
    ToldOnce told;
    for (const auto& [i, j] : segmentPairs(segments, options.tolerance)) {
        const PlanSegment& a = segments[i];
        const PlanSegment& b = segments[j];
        if (a.wall == b.wall &&
            areNeighbours(walls[a.wall], a.segment, b.segment, segments, i, j)) {
            continue;
        }
        const double tolerance = pairTolerance(a, b, options.tolerance);
        const auto met = meeting(a, b, tolerance);
        if (met && told.isNew(*met)) {
            drafts.push_back(draftOf(*met, tolerance, options, walls));
        }
    }
    for (DraftPlace& draft : drafts) {
        draft.dropped = draft.place.reason == JoinReason::bend && told.overlap(draft.place);
    }
    return drafts;
}

bool isAsked(const JoinPlace& place, const JoinOptions& options) {
    return place.kind == PlaceKind::corner ? options.corners : place.style != JoinKind::none;
}

auto sortKey(const JoinPlace& place) {
    const JoinSide& a = place.first;
    const JoinSide& b = place.second;
    const auto low = std::min(std::pair(a.wall, a.segment), std::pair(b.wall, b.segment));
    const auto high = std::max(std::pair(a.wall, a.segment), std::pair(b.wall, b.segment));
    return std::tuple(low, high);
}

} // namespace

JoinPlan planJoins(std::span<const JoinWall> walls, const JoinOptions& options) {
    std::vector<DraftPlace> drafts = findPlaces(walls, options);
    for (DraftPlace& draft : drafts) {
        JoinPlace& place = draft.place;
        if (place.result == PlaceResult::planned) {
            settlePlace(place, {walls[place.first.wall], walls[place.second.wall]});
        }
    }
    resolveConflicts(drafts, walls);

    JoinPlan plan;
    for (DraftPlace& draft : drafts) {
        if (draft.dropped) {
            continue;
        }
        if (draft.place.result == PlaceResult::planned && !isAsked(draft.place, options)) {
            draft.place.result = PlaceResult::unasked;
        }
        plan.places.push_back(std::move(draft.place));
    }
    std::stable_sort(
        plan.places.begin(), plan.places.end(),
        [](const JoinPlace& a, const JoinPlace& b) { return sortKey(a) < sortKey(b); });
    plan.order = joinOrder(plan.places, walls);
    return plan;
}

} // namespace orvex
