#pragma once

#include "MlineStyleContent.h"
#include "drawMline.h"
#include "mlineTrack.h"

namespace orvex {

// The parts that take more than one element. `across` has the elements by position.
void drawCaps(const MlineContent& mline, const MlineChain& chain, int styleFlags,
              std::span<const unsigned> across, MlineSink& sink);
void drawJoints(const MlineChain& chain, std::span<const unsigned> across, MlineSink& sink);
void drawFill(const MlineChain& chain, std::span<const unsigned> across, MlineSink& sink);

} // namespace orvex
