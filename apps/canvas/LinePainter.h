#pragma once

#include "Appearance.h"
#include "dashCycle.h"
#include "readableColor.h"

#include <QImage>
#include <QRect>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orvex {

// Draws thin lines straight into an image of 32-bit colours, many times faster than a general
// painter. What a pixel gets from a line depends on the line and the pixel alone: a part of a
// picture that is painted again within a clip comes out as it was. Coordinates are pixels, y
// downwards; pixel (0, 0) reaches to (1, 1). Lines along the axes fill whole pixels, so that they
// are crisp; all others are smoothed. Areas aren't: their edges have lines on them.
class LinePainter {
public:
    // Draws only within `clip`, which lies within the image.
    // With a ground, colours that can't be read on it are changed (readableRgb).
    LinePainter(QImage& image, const QRect& clip, int lineWidth,
                std::optional<std::uint32_t> ground = std::nullopt);

    void chain(std::span<const PlanPoint> points, std::uint32_t rgb);
    void dashedChain(std::span<const PlanPoint> points, std::uint32_t rgb, const DashCycle& cycle);
    void dot(PlanPoint point, std::uint32_t rgb);
    // Every pixel whose middle the outline goes around, as often as it may (but not 0 times in
    // all).
    void area(std::span<const PlanPoint> outline, std::uint32_t rgb);

private:
    void paintDot(PlanPoint point, std::uint32_t rgb);
    [[nodiscard]] std::uint32_t painted(std::uint32_t rgb) {
        return m_colors ? (*m_colors)(rgb) : rgb;
    }
    void line(PlanPoint from, PlanPoint to, std::uint32_t rgb, bool squareEnds);
    void alongAxis(double from, double to, double across, bool upright, std::uint32_t rgb,
                   bool squareEnds);
    void slanted(PlanPoint from, PlanPoint to, std::uint32_t rgb, bool squareEnds);
    void dashes(PlanPoint from, PlanPoint to, double before, std::uint32_t rgb,
                const DashCycle& cycle, double period);
    [[nodiscard]] bool canMeet(PlanPoint from, PlanPoint to) const;
    void fill(int left, int top, int right, int bottom,
              std::uint32_t rgb); // right, bottom excluded
    void shade(int x, int y, std::uint32_t rgb, double cover);

    // Where a row's middle is crossed, and whether on the way down.
    struct Crossing {
        double x = 0.0;
        int turn = 0;
    };
    std::vector<Crossing> m_crossings; // kept, so that not every row needs memory of its own

    std::uint32_t* m_pixels;
    int m_stride; // pixels
    int m_left;   // of the clip
    int m_top;
    int m_right; // excluded, as the bottom
    int m_bottom;
    int m_width;
    std::optional<ReadableColors> m_colors;
};

} // namespace orvex
