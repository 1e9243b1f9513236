#pragma once

#include "MlineContent.h"
#include "StyleLayout.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace orvex {

// What about a multiline contradicts its style or itself.
enum class FindingCode : std::uint8_t {
    style,    // the drawing has no such style
    elements, // more or fewer elements than the style has: was and should are their numbers
    chain,    // nothing can be judged: chainFrameOf refuses it
    axis,     // doesn't follow its segment: degrees between them
    miter,    // doesn't halve the angle, or lies along the segment at an open end: degrees from
              // the axis
    position, // an element isn't where style, scale and justification put it: distances from the
              // chain
    order,    // a distance of a list lies before the one in front of it
    reach,    // a distance of a list lies beyond the element's next position
};

struct Finding {
    FindingCode code = FindingCode::style;
    unsigned vertex = 0;
    std::optional<unsigned> element; // nothing where it concerns the vertex or all of it
    std::optional<double> was;       // nothing where there is no number to it
    std::optional<double> should;

    friend bool operator==(const Finding&, const Finding&) = default;
};

// By vertex, at each directions first, then elements in order. Places may differ by 1e-9 of the
// largest coordinate; a list may reach 1e-7 beyond the next position, and at an end whose cap a
// joint suppressed as far as the joint has it. A null style is one that the drawing doesn't have.
std::vector<Finding> auditMline(const MlineContent& mline, const StyleLayout* style);

} // namespace orvex
