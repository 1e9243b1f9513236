#pragma once

#include "Failure.h"
#include "KdMLSegment.h"
#include "mlineTrack.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orvex {

// A list of line or area parameters: the position along the miter, then the distances at which
// drawn stretches begin and end in turn.

// By how much a distance may lie beyond the end of its track before that is a fault, drawing units.
inline constexpr double kReachBeyond = 1e-7;

// Where a place on an old track lies on the new one.
enum class GapMeasure : std::uint8_t {
    square,  // at its foot
    halfway, // square to the middle between both directions, so that going back leads back
};

// How a track moves under a list that is to stay where it lies in the drawing.
struct TrackMove {
    MlineTrack before;
    MlineTrack after;
    // Whether stretches that begin before the track, or end after it, as those of joints do, may
    // go on doing so. Otherwise they are cut off there.
    bool mayBeginBefore = false;
    bool mayEndAfter = false;
    GapMeasure measure = GapMeasure::square;
};

// The list with its distances measured on the new track. What began or ended with the
// old track does so with the new one; the position is kept.
std::vector<double> remeasured(std::span<const double> list, const TrackMove& move);

// Whether no distance lies before the one in front of it.
bool ascends(std::span<const double> list);
// Why no edit can keep the gaps: a list of some segment doesn't ascend.
std::optional<Failure> gapContradiction(const MlineContent& mline);
// The same drawn stretches in order, those that overlap as one.
std::vector<double> inOrder(std::span<const double> list);
// Without what lies after the end of the track.
std::vector<double> cutAtEnd(std::span<const double> list, double trackLength);

VoVector<double> toParameters(std::span<const double> list);

} // namespace orvex
