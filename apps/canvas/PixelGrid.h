#pragma once

#include "PlanView.h"

#include <QRect>

#include <cstdint>
#include <vector>

namespace orvex {

// The plan at one scale as an endless grid of pixels, whose pixel (0, 0) has the plan's origin at
// its upper left corner; y downwards. It is cut into square tiles that are painted one by one. A
// view is a window on the grid at whole pixels, so what was painted for one view is right for every
// other one of the same scale.
struct TileKey {
    std::int64_t column = 0;
    std::int64_t row = 0;

    friend bool operator==(const TileKey&, const TileKey&) = default;
};

class PixelGrid {
public:
    static constexpr int kTileSide = 256; // pixels

    PixelGrid() = default;
    // `ratio` is device pixels to one of the view's.
    PixelGrid(const PlanView& view, double ratio);

    [[nodiscard]] double unitsPerPixel() const { return m_unitsPerPixel; }
    [[nodiscard]] int lineWidth() const { return m_lineWidth; } // pixels
    [[nodiscard]] bool hasScaleOf(const PixelGrid& other) const {
        return m_unitsPerPixel == other.m_unitsPerPixel;
    }

    // The tiles that the view shows a part of, those in its middle first.
    [[nodiscard]] std::vector<TileKey> visibleTiles() const;
    // Where a tile's upper left corner stands in the view, device pixels.
    [[nodiscard]] QPoint tileOrigin(const TileKey& tile) const;
    // Relative to the tile's corner, not rounded.
    [[nodiscard]] PlanPoint toTilePixels(const TileKey& tile, PlanPoint plan) const;
    // The plan at the view's upper left corner, and where a place of the plan stands in the view.
    [[nodiscard]] PlanPoint viewCorner() const;
    [[nodiscard]] PlanPoint toViewPixels(PlanPoint plan) const;
    // What a rectangle of a tile's pixels shows.
    [[nodiscard]] PlanBox planOf(const TileKey& tile, const QRect& pixels) const;
    // The pixels of a tile that a box of the plan touches with lines of usual width.
    [[nodiscard]] QRect pixelsOf(const TileKey& tile, const PlanBox& box) const;

    // The view of the plan in the tile's pixels, for painters.
    [[nodiscard]] PlanView viewOf(const TileKey& tile) const;

private:
    [[nodiscard]] int lineReach() const;

    double m_unitsPerPixel = 1.0;
    int m_lineWidth = 1;
    std::int64_t m_left = 0; // the view's window, grid pixels
    std::int64_t m_top = 0;
    int m_width = 1;
    int m_height = 1;
};

} // namespace orvex
