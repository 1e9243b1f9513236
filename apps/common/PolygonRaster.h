#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include <QPointF>

class QImage;

namespace orvex {

struct PixelArea {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
};

// Fills small polygons with how much of each pixel they cover, to the bytes that an antialiasing
// QPainter gives: points are rounded to 64ths of a pixel, edges are cut at pixel borders in 256ths,
// rounded down, and a pixel's cover is the exact area between what is left of them.
class PolygonRaster {
public:
    // The image has 32 bits a pixel, and its memory stays where it is.
    explicit PolygonRaster(QImage& image);

    // Not what reaches over the image's edge, nor what is so large that this would be slow.
    [[nodiscard]] bool canFill(const PixelArea& area) const;
    // Where the next polygon lies.
    void begin(const PixelArea& area);
    // Turning either way; it has to lie where `begin` was told.
    void fill(std::span<const QPointF> outline, std::uint32_t rgb);

private:
    // Of a pixel: the height that edges go through it, and twice the area on their left, in 256ths.
    struct Cell {
        int cover = 0;
        int area = 0;
    };
    void addEdge(int x1, int y1, int x2, int y2);
    void addWithinRow(Cell* row, int x1, int y1, int x2, int y2);
    void blendRow(std::uint32_t* pixels, const Cell* row, std::uint32_t color) const;

    std::uint32_t* m_pixels;
    std::ptrdiff_t m_stride; // pixels
    int m_width;
    int m_height;
    int m_left = 0; // of the cells
    int m_top = 0;
    int m_columns = 0;
    int m_rows = 0;
    std::vector<Cell> m_cells;
};

} // namespace orvex
