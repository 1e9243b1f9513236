#pragma once

#include "PolygonRaster.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include <QPointF>

class QLineF;

namespace orvex {

// Paints straight lines with round ends into a picture to the same bytes as an antialiasing
// QPainter with such a pen, in a fraction of its time: drawings are mostly such lines, and most are
// a few pixels long.
//
// The outline is worked out by the same operations in the same order, since results that only
// nearly agree differ once they are rounded to the raster.
class RoundLinePainter {
public:
    // The image has 32 bits a pixel and outlives this; nothing else may replace its memory.
    explicit RoundLinePainter(QImage& image) : m_raster(image) {}

    // In pixels. False for what is left to the QPainter: lines that reach over the edge, very large
    // ones, and thin ones, which it paints in another way. Doesn't depend on what was painted.
    [[nodiscard]] bool canPaint(QPointF from, QPointF to, double width) const;
    void paint(QPointF from, QPointF to, double width, std::uint32_t rgb); // what it can

private:
    struct Curve {
        QPointF start;
        QPointF control1;
        QPointF control2;
        QPointF end;
        unsigned halvings = 0; // left

        [[nodiscard]] bool isFlat() const;
    };
    void add(QPointF point) { m_outline[m_count++] = point; }
    void addCap(QPointF focus, const QLineF& side, QPointF next);
    void addCurve(QPointF control1, QPointF control2, QPointF end);

    static constexpr unsigned kDeepest = 9;     // halvings of a curve
    static constexpr std::size_t kCurves = 4;   // two to an end
    static constexpr std::size_t kStraight = 3; // points
    std::array<QPointF, kCurves*(1U << kDeepest) + kStraight> m_outline;
    std::size_t m_count = 0;
    double m_half = 0.0; // of the width
    std::array<Curve, kDeepest + 1> m_waiting;
    PolygonRaster m_raster;
};

} // namespace orvex
