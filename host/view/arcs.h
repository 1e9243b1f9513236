#pragma once

#include "Appearance.h"
#include "EntityShape.h"
#include "KdGePoint3d.h"

#include <vector>

namespace orvex {

// Arcs as chains of straight pieces. A piece turns by at most 2.5 degrees, so a chain lies within
// a 4,000th of its radius, whatever the size, and a circle reaches as far as it should.

// From centre + cos(begin) major + sin(begin) minor on by `sweep` radians, both ends included.
// A sweep of more than a full turn either way is cut to one; one that isn't finite gives nothing.
void appendArc(std::vector<KdGePoint3d>& chain, const KdGePoint3d& center,
               const KdGeVector3d& major, const KdGeVector3d& minor, double begin, double sweep);

// A conic from its start to its end in the direction of growing parameters; one that ends where it
// starts goes all the way round.
std::vector<KdGePoint3d> conicChain(const ConicShape& conic);

// A polyline with its bulges rounded out, back to its first vertex when it is closed. Appends to
// `arcs`, unless null, which points those are.
std::vector<KdGePoint3d> polylineChain(const PolylineShape& polyline,
                                       std::vector<ArcSpan>* arcs = nullptr);

} // namespace orvex
