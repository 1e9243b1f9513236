#include "breakLists.h"

#include "hostText.h"
#include "impossible.h"

#include "geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvex {

namespace {

constexpr double kStraightBack = 1e-6; // there is nothing halfway
constexpr double kOpenEnd = std::numeric_limits<double>::infinity();

std::vector<MlineStretch> stretchesOf(std::span<const double> list) {
    std::vector<MlineStretch> stretches;
    forEachStretch(list, kOpenEnd,
                   [&](const MlineStretch& stretch) { stretches.push_back(stretch); });
    return stretches;
}

// Only a last stretch can be without an end.
std::vector<double> listOf(std::span<const double> positionOf,
                           const std::vector<MlineStretch>& stretches) {
    std::vector<double> list;
    if (!positionOf.empty()) {
        list.push_back(positionOf.front());
    }
    for (const MlineStretch& stretch : stretches) {
        list.push_back(stretch.begin);
        if (!stretch.toTrackEnd) {
            list.push_back(stretch.end);
        }
    }
    return list;
}

class Remeasurer {
public:
    explicit Remeasurer(const TrackMove& move)
        : m_move(move), m_tolerance(reachTolerance(move.before.length)) {}

    // At an end that moves an empty stretch would get a length.
    [[nodiscard]] bool isEmpty(const MlineStretch& old) const {
        return old.toTrackEnd ? old.begin >= m_move.before.length - m_tolerance
                              : old.begin >= old.end;
    }

    [[nodiscard]] MlineStretch operator()(const MlineStretch& old) const {
        MlineStretch fresh{atBegin(old.begin), m_move.after.length, old.toTrackEnd};
        if (!old.toTrackEnd) {
            fresh.end = atEnd(old.end);
        }
        return fresh;
    }

private:
    [[nodiscard]] double measured(double distance) const {
        if (m_move.before.start == m_move.after.start &&
            m_move.before.direction == m_move.after.direction) {
            return distance;
        }
        const KdGeVector3d way = m_move.before.at(distance) - m_move.after.start;
        const KdGeVector3d& direction = m_move.after.direction;
        if (m_move.measure == GapMeasure::halfway && !(direction == m_move.before.direction)) {
            const KdGeVector3d middle = direction + m_move.before.direction;
            const double along = dot(direction, middle); // 1 plus the cosine between both
            if (along > kStraightBack) {
                return dot(way, middle) / along;
            }
        }
        return dot(way, direction);
    }
    [[nodiscard]] double atBegin(double old) const {
        if (std::abs(old) <= m_tolerance) {
            return old;
        }
        const double fresh = measured(old);
        return fresh < 0.0 && !(m_move.mayBeginBefore && old < 0.0) ? 0.0 : fresh;
    }
    [[nodiscard]] double atEnd(double old) const {
        const double length = m_move.after.length;
        if (std::abs(old - m_move.before.length) <= m_tolerance) {
            return length;
        }
        const double fresh = measured(old);
        return fresh > length && !(m_move.mayEndAfter && old > m_move.before.length) ? length
                                                                                     : fresh;
    }

    const TrackMove& m_move;
    double m_tolerance;
};

} // namespace

std::vector<double> remeasured(std::span<const double> list, const TrackMove& move) {
    std::vector<MlineStretch> kept;
    const Remeasurer remeasure(move);
    for (const MlineStretch& old : stretchesOf(list)) {
        const MlineStretch fresh = remeasure(old);
        if (!remeasure.isEmpty(old) && fresh.begin < fresh.end) {
            kept.push_back(fresh);
        }
    }
    const std::vector<double> fresh = listOf(list, kept);
    // On a track that runs back, as a narrow bend leaves it, they may overlap.
    return ascends(fresh) ? fresh : inOrder(fresh);
}

bool ascends(std::span<const double> list) {
    return list.empty() || std::is_sorted(list.begin() + 1, list.end());
}

std::optional<Failure> gapContradiction(const MlineContent& mline) {
    const MlineChain chain(mline);
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        for (unsigned e = 0; e < mline.lists.elementCount(s); ++e) {
            if (!ascends(chain.line(s, e)) || !ascends(chain.area(s, e))) {
                return impossible(hostText("its gaps contradict each other"));
            }
        }
    }
    return std::nullopt;
}

std::vector<double> inOrder(std::span<const double> list) {
    std::vector<MlineStretch> stretches = stretchesOf(list);
    for (MlineStretch& stretch : stretches) {
        if (stretch.end < stretch.begin) { // drawn backwards
            std::swap(stretch.begin, stretch.end);
        }
    }
    std::stable_sort(
        stretches.begin(), stretches.end(),
        [](const MlineStretch& a, const MlineStretch& b) { return a.begin < b.begin; });
    std::vector<MlineStretch> merged;
    for (const MlineStretch& stretch : stretches) {
        if (merged.empty() || merged.back().end < stretch.begin) {
            merged.push_back(stretch);
        } else if (merged.back().end < stretch.end) {
            merged.back().end = stretch.end;
            merged.back().toTrackEnd = stretch.toTrackEnd;
        }
    }
    return listOf(list, merged);
}

std::vector<double> cutAtEnd(std::span<const double> list, double trackLength) {
    std::vector<MlineStretch> kept;
    for (MlineStretch stretch : stretchesOf(list)) {
        if (stretch.begin < trackLength) {
            stretch.toTrackEnd = stretch.end >= trackLength;
            kept.push_back(stretch);
        }
    }
    return listOf(list, kept);
}

VoVector<double> toParameters(std::span<const double> list) {
    VoVector<double> parameters(static_cast<unsigned>(list.size()));
    if (!list.empty()) {
        std::copy(list.begin(), list.end(), parameters.data());
    }
    return parameters;
}

} // namespace orvex
