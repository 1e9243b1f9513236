#pragma once

#include <QColor>
#include <QIcon>
#include <QSize>

#include <cstdint>
#include <vector>

namespace orvex {

inline constexpr QSize kSwatchSize(20, 12);     // pixels
inline constexpr QSize kLineSampleSize(64, 12); // pixels

// A framed field of the colour 0xRRGGBB.
QIcon colorSwatch(std::uint32_t rgb, const QColor& frame);

// At least two repetitions of a line type, in drawing units: positive pen down, negative pen up, 0
// a dot; without any length it is continuous.
QIcon lineSample(const std::vector<double>& dashes, const QColor& ink);

} // namespace orvex
