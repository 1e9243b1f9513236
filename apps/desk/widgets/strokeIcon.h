#pragma once

#include <QIcon>
#include <QPalette>

namespace orvex {

// A picture of thin lines in the palette's text colour, on a square of 24 by 24 units, y downwards.
// Strokes are "M x y L x y ..." for a chain and "C x y r" for a circle.
QIcon strokeIcon(const char* strokes, const QPalette& palette);

} // namespace orvex
