#pragma once

#include <QIcon>
#include <QPalette>
#include <QSize>

namespace orvex {

struct LayerChoice;

inline constexpr QSize kLayerIcon(32, 16); // device-independent pixels

// A square in the layer's colour, and a lock beside it where it is locked.
QIcon layerIcon(const LayerChoice& layer, const QPalette& palette, double devicePixelRatio);

} // namespace orvex
