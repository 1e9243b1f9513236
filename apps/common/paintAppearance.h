#pragma once

#include "Appearance.h"
#include "PlanView.h"

#include <cstdint>
#include <optional>

class QPainter;

namespace orvex {

class LineQueue;

struct PaintSettings {
    double lineWidth = 1.0;           // pixels
    double pixelsPerMillimetre = 0.0; // of line weights; 0: all lines have the one width
    bool onPaper = false; // on white, where what is white on a dark ground is drawn black
    std::optional<std::uint32_t> ground{}; // colours that can't be read on it are changed
};

// What to paint of an appearance; fills of many entities may go below all their lines.
enum class PaintParts : std::uint8_t { all, fills, linesAndLabels };

// Pixels, by the line's weight where weights are shown.
double paintedWidth(const Stroke& stroke, const PaintSettings& settings);

// 0xRRGGBB as it is painted.
std::uint32_t paintedRgb(std::uint32_t rgb, const PaintSettings& settings);

// Paints what an entity looks like. The painter's coordinates are the view's pixels; its pen,
// brush and font are changed. Where there are `lines` for the same picture, they take what they
// can; the painter has to be antialiasing and unclipped then, and they have to settle at the end.
void paintAppearance(QPainter& painter, const Appearance& appearance, const PlanView& view,
                     const PaintSettings& settings, PaintParts parts = PaintParts::all,
                     LineQueue* lines = nullptr);

} // namespace orvex
