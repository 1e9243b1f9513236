#pragma once

#include "JoinWall.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// How a crossing or a tee is to look.
enum class JoinKind { closed, open, merged, none };

struct JoinOptions {
    // Drawing units; without it half the width of the narrower wall of a pair.
    std::optional<double> tolerance;
    JoinKind cross = JoinKind::open;
    JoinKind tee = JoinKind::open;
    bool corners = true;
};

enum class PlaceKind { cross, tee, corner, node, overlap };

enum class PlaceResult {
    planned, // to be joined; whoever plays the plan makes it joined or left
    joined,
    already, // was joined before, in whatever kind
    left,    // stays as it is, for a reason
    unasked, // a kind that the options leave out
};

// Why a place is left. The words of joinReasonCode are for programs and stay as they are.
enum class JoinReason {
    none,
    node,          // three or more ends or walls meet
    alongside,     // ends or walls run along each other
    duplicate,     // the same wall twice
    normal,        // a normal other than +z
    plane,         // at different heights
    gap,           // a gap leaves no line to pick
    noPick,        // whole lines, but a pick would find others
    style,         // a wall's style isn't in the drawing
    outerElements, // first and last element aren't the outermost, or coincide
    singleElement, // a wall of one element
    tooFlat,       // corner: nearly in one line
    tooAcute,      // corner: the point reaches too far
    shortLeg,      // a leg is too short for the joint
    reach,         // the joint reaches into the one at another place
    bend,          // on a bend of one of the walls
    bothEnds,      // a wall with both ends at the place
    severalBars,   // an end reaches several walls
    axis,          // the chains, which the tools go by, don't cross there
    closing,       // the tools don't find the closing segment of a ring there
    refused,       // the tool took no pick or changed nothing
    notRight,      // came out wrong, and was taken back
};

[[nodiscard]] std::string_view placeKindWord(PlaceKind kind);
[[nodiscard]] std::string_view placeResultWord(PlaceResult result);
[[nodiscard]] std::string_view joinReasonCode(JoinReason reason);
// All codes, for a help text. In the order of the enumeration, without `none`.
[[nodiscard]] std::span<const JoinReason> joinReasons();

// A wall's part in a cross, a tee or a corner.
struct JoinSide {
    unsigned wall = 0; // index into the walls that were planned
    unsigned segment = 0;
    WallEnd end = WallEnd::none; // the end that is joined; none where the wall goes on
};

struct JoinPlace {
    PlaceKind kind = PlaceKind::cross;
    PlaceResult result = PlaceResult::planned;
    JoinKind style = JoinKind::open; // of a cross or a tee
    JoinReason reason = JoinReason::none;
    PlanVector at;
    double height = 0.0;
    std::vector<unsigned> walls; // those that meet, in drawing order
    // Of a cross, a tee or a corner. Cross: `first` goes under, `second` stays on top; tee: `first`
    // is the stem, `second` the bar; corner: in drawing order. This is the order of the picks.
    JoinSide first;
    JoinSide second;
    // For the reason: a length that is there and the one that would be needed.
    double has = 0.0;
    double needs = 0.0;
    std::vector<unsigned> others; // walls of the place that is in the way
};

// The reason in plain words, with its numbers; walls by their handles. Empty without a reason.
[[nodiscard]] std::string joinReasonText(const JoinPlace& place, std::span<const JoinWall> walls);

} // namespace orvex
