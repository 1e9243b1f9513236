#pragma once

#include "MlineContent.h"
#include "MlineStyleContent.h"
#include "PlacedSink.h"

#include <vector>

namespace orvex {

// The colours and line types of a multiline, by layer and by block resolved.
struct MlinePens {
    Pen own; // of the multiline itself, for elements that the style doesn't have
    std::vector<Pen> elements;
    std::uint32_t fillRgb = 0xFFFFFF;

    [[nodiscard]] const Pen& of(unsigned element) const {
        return element < elements.size() ? elements[element] : own;
    }
};

// Draws a multiline with its fill, element lines, caps and joints. Caps and joints have half of
// each of the elements that they join. `style` may be null.
void paintMline(const MlineContent& mline, const MlineStyleContent* style, const MlinePens& pens,
                PlacedSink& sink);

} // namespace orvex
