#pragma once

#include "SnapLine.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace orvex {

class Scene;

// What isn't to be found, since it moves with the point.
struct SnapExclusion {
    std::vector<std::uint64_t> handles{};
    // Of these multilines all but the other vertices of their chains.
    struct Vertex {
        std::uint64_t handle = 0;
        std::size_t index = 0;
    };
    std::vector<Vertex> vertices{};
};

enum class SnapSource : std::uint8_t {
    line,    // drawn, of any entity but a multiline
    element, // a drawn stretch of a multiline's element
    axis,    // a segment of a multiline's chain, drawn or not
};

// A straight piece of an entity, or a piece of an arc.
struct SnapPiece {
    SnapLine line;
    SnapSource source = SnapSource::line;
    std::uint64_t handle = 0;
    std::size_t stroke = 0; // neighbours on it have numbers in sequence
    std::size_t number = 0;
    bool isFromEnd = false; // of the line, or of the arc, that it is a piece of
    bool isToEnd = false;
    std::optional<PlanPoint> middle{}; // of what it is a piece of
};

// From a drawn stretch of an element to the segment that it runs along.
struct SnapLead {
    SnapLine stretch;
    SnapLine segment;
    std::uint64_t handle = 0;
};

struct SnapScan {
    std::vector<SnapPiece> pieces; // in drawing order
    std::vector<SnapLead> leads;   // where they are wanted
};

// The pieces of seen entities that have a point in `area`. Bounded, however much lies there: of
// many entities those whose boxes are nearest to `place`, of many pieces the first.
SnapScan scanForSnap(Scene& scene, const PlanBox& area, PlanPoint place,
                     const SnapExclusion& exclusion, bool wantsLeads);

} // namespace orvex
