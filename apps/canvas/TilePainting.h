#pragma once

#include "Deadline.h"
#include "LinePainter.h"
#include "PixelGrid.h"
#include "Scene.h"

#include <QImage>
#include <QRect>

#include <cstdint>
#include <vector>

namespace orvex {

// Paints a tile, or a rectangle of one, in steps. What comes out doesn't depend on the rectangle:
// a tile that is painted piece by piece is the same as one painted at once.
class TilePainting {
public:
    // The scene has to stay as it is until the end. `before` is what the tile showed, of no size
    // when it is painted for the first time; only `pixels` of it change.
    // `ground` is painted below, and colours are changed to be read on it.
    TilePainting(Scene& scene, const PixelGrid& grid, const TileKey& tile, QImage before,
                 const QRect& pixels, std::uint32_t ground);

    // True when it is done.
    bool advance(Deadline deadline);

    [[nodiscard]] const TileKey& tile() const { return m_tile; }
    [[nodiscard]] const QRect& pixels() const { return m_pixels; }
    [[nodiscard]] const QImage& image() const { return m_image; }

private:
    enum class Pass : std::uint8_t { fills, lines, done };
    bool paintFills(Deadline deadline);
    bool paintLines(Deadline deadline);
    [[nodiscard]] bool mustPause(Deadline deadline) const;
    [[nodiscard]] double sideOf(std::uint32_t entity) const;
    bool paintSmall(std::uint32_t entity, LinePainter& lines);
    bool paintCompact(CompactAppearance compactAppearance, const PlanBox& box, LinePainter& lines);
    void paintAreas(CompactAppearance compactAppearance, const PlanBox& box, LinePainter& lines);
    const std::vector<PlanPoint>& inPixels(const CompactAppearance::Line& line, const PlanBox& box);

    Scene* m_scene;
    PixelGrid m_grid;
    TileKey m_tile;
    QRect m_pixels;
    QImage m_image;
    std::uint32_t m_ground;
    std::vector<std::uint32_t> m_entities;
    std::size_t m_next = 0;
    Pass m_pass = Pass::fills;
    std::vector<PlanPoint> m_points; // kept, so that not every line needs memory of its own
};

} // namespace orvex
