#pragma once

#include "Appearance.h"

#include <optional>

namespace orvex {

// How far from the point the nearest of those drawn lines runs that pass through the square which
// reaches `reach` to each side of it, edges included; nothing when none does. Lengths in drawing
// units.
std::optional<double> pickDistance(const Appearance& appearance, PlanPoint point, double reach);

} // namespace orvex
