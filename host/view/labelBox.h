#pragma once

#include "Appearance.h"

namespace orvex {

// How painters place a text, so that all of them cover the same box.

// A capital's height as a part of the size that fonts are named by.
constexpr double kCapitalOfFontSize = 0.729;

// How far the base line lies above the anchor, in drawing units.
double baseLineRise(const Label& label);

// The width of its box along its base line, in drawing units. What is painted in pixels is no
// wider.
double labelWidth(const Label& label);

// What a text covers, by the usual width of letters; fonts differ a little.
PlanBox labelBox(const Label& label);

} // namespace orvex
