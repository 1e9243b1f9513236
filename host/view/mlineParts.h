#pragma once

#include "MlineStyleContent.h"
#include "drawMline.h"
#include "mlineTrack.h"

namespace orvex {

// Flags of a style.
enum MlineStyleFlag : int {
    kStyleFilled = 1,
    kStyleMiters = 2,
    kStyleStartLine = 16,
    kStyleStartArcs = 32,
    kStyleStartRound = 64,
    kStyleEndLine = 256,
    kStyleEndArcs = 512,
    kStyleEndRound = 1024,
};

// The parts that take more than one element. `across` has the elements by position.
void drawCaps(const MlineContent& mline, const MlineChain& chain, int styleFlags,
              std::span<const unsigned> across, MlineSink& sink);
void drawJoints(const MlineChain& chain, std::span<const unsigned> across, MlineSink& sink);
void drawFill(const MlineChain& chain, std::span<const unsigned> across, MlineSink& sink);

} // namespace orvex
