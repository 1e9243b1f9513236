#include "PixelGrid.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

// Doubles have no whole pixels beyond, and nothing can be seen of a plan there.
std::int64_t wholePixel(double pixel) {
    constexpr double kFarthest = 1e15;
    return static_cast<std::int64_t>(std::floor(std::clamp(pixel, -kFarthest, kFarthest)));
}

std::int64_t tileOfPixel(std::int64_t pixel) {
    constexpr std::int64_t side = PixelGrid::kTileSide;
    return (pixel >= 0 ? pixel : pixel - (side - 1)) / side;
}

} // namespace

PixelGrid::PixelGrid(const PlanView& view, double ratio)
    : m_unitsPerPixel(view.unitsPerPixel() / ratio),
      m_lineWidth(std::max(1, static_cast<int>(std::lround(ratio)))),
      m_width(static_cast<int>(std::ceil(view.width() * ratio))),
      m_height(static_cast<int>(std::ceil(view.height() * ratio))) {
    const PlanPoint corner = view.toPlan({0.0, 0.0});
    m_left = wholePixel(corner.x / m_unitsPerPixel + 0.5);
    m_top = wholePixel(-corner.y / m_unitsPerPixel + 0.5);
}

// How far from its points a line may leave a trace, pixels: its end reaches over by half its width,
// and at 45 degrees its sides are another 0.71 of its width away.
int PixelGrid::lineReach() const {
    return 1 + 2 * m_lineWidth;
}

std::vector<TileKey> PixelGrid::visibleTiles() const {
    std::vector<TileKey> tiles;
    for (std::int64_t row = tileOfPixel(m_top); row <= tileOfPixel(m_top + m_height - 1); ++row) {
        for (std::int64_t column = tileOfPixel(m_left); column <= tileOfPixel(m_left + m_width - 1);
             ++column) {
            tiles.push_back({column, row});
        }
    }
    const auto distance = [this](const TileKey& tile) {
        const QPoint origin = tileOrigin(tile);
        return std::hypot(origin.x() + (kTileSide - m_width) / 2.0,
                          origin.y() + (kTileSide - m_height) / 2.0);
    };
    std::stable_sort(tiles.begin(), tiles.end(),
                     [&](const TileKey& a, const TileKey& b) { return distance(a) < distance(b); });
    return tiles;
}

QPoint PixelGrid::tileOrigin(const TileKey& tile) const {
    return {static_cast<int>(tile.column * kTileSide - m_left),
            static_cast<int>(tile.row * kTileSide - m_top)};
}

PlanPoint PixelGrid::toTilePixels(const TileKey& tile, PlanPoint plan) const {
    return {plan.x / m_unitsPerPixel - static_cast<double>(tile.column * kTileSide),
            -plan.y / m_unitsPerPixel - static_cast<double>(tile.row * kTileSide)};
}

PlanPoint PixelGrid::viewCorner() const {
    return {static_cast<double>(m_left) * m_unitsPerPixel,
            -static_cast<double>(m_top) * m_unitsPerPixel};
}

PlanPoint PixelGrid::toViewPixels(PlanPoint plan) const {
    return {plan.x / m_unitsPerPixel - static_cast<double>(m_left),
            -plan.y / m_unitsPerPixel - static_cast<double>(m_top)};
}

PlanBox PixelGrid::planOf(const TileKey& tile, const QRect& pixels) const {
    const auto left = static_cast<double>(tile.column * kTileSide + pixels.left() - lineReach());
    const auto top = static_cast<double>(tile.row * kTileSide + pixels.top() - lineReach());
    const double right = left + pixels.width() + 2 * lineReach();
    const double bottom = top + pixels.height() + 2 * lineReach();
    return {{left * m_unitsPerPixel, -bottom * m_unitsPerPixel},
            {right * m_unitsPerPixel, -top * m_unitsPerPixel}};
}

QRect PixelGrid::pixelsOf(const TileKey& tile, const PlanBox& box) const {
    const PlanPoint low = toTilePixels(tile, {box.low.x, box.high.y});
    const PlanPoint high = toTilePixels(tile, {box.high.x, box.low.y});
    const auto inside = [](double pixel) {
        return static_cast<int>(std::clamp(std::floor(pixel), -16.0, kTileSide + 16.0));
    };
    const QRect touched(QPoint(inside(low.x) - lineReach(), inside(low.y) - lineReach()),
                        QPoint(inside(high.x) + lineReach(), inside(high.y) + lineReach()));
    return touched & QRect(0, 0, kTileSide, kTileSide);
}

PlanView PixelGrid::viewOf(const TileKey& tile) const {
    PlanView view(kTileSide, kTileSide);
    const double middle = kTileSide / 2.0;
    view.setView({(static_cast<double>(tile.column * kTileSide) + middle) * m_unitsPerPixel,
                  -(static_cast<double>(tile.row * kTileSide) + middle) * m_unitsPerPixel},
                 kTileSide * m_unitsPerPixel);
    return view;
}

} // namespace orvex
