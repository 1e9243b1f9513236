#include "TilePainting.h"

#include "drawStrokes.h"
#include "paintAppearance.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace orvex {

namespace {

// Sides of boxes in pixels. What is no larger than a dot shows as one; what is no larger than a
// compact appearance is drawn from it; its points are then right to a thousandth of a pixel.
constexpr double kDotSide = 1.5;
constexpr double kCompactSide = 64.0;
constexpr double kLeastLabel = 1.0; // pixels high; painters leave out smaller ones
constexpr std::size_t kEntitiesBetweenClockReads = 8;

} // namespace

TilePainting::TilePainting(Scene& scene, const PixelGrid& grid, const TileKey& tile, QImage before,
                           const QRect& pixels, std::uint32_t ground)
    : m_scene(&scene), m_grid(grid), m_tile(tile), m_pixels(pixels), m_image(std::move(before)),
      m_ground(ground), m_entities(scene.entitiesIn(grid.planOf(tile, pixels))) {
    if (m_image.isNull()) {
        m_image = QImage(PixelGrid::kTileSide, PixelGrid::kTileSide, QImage::Format_RGB32);
    }
    QPainter painter(&m_image);
    painter.fillRect(pixels, QColor::fromRgb(m_ground));
}

// All fills go below all lines, so that none hides a line.
bool TilePainting::advance(Deadline deadline) {
    if (m_pass == Pass::fills && paintFills(deadline)) {
        m_pass = Pass::lines;
        m_next = 0;
    }
    if (m_pass == Pass::lines && paintLines(deadline)) {
        m_pass = Pass::done;
    }
    return m_pass == Pass::done;
}

bool TilePainting::mustPause(Deadline deadline) const {
    return m_next % kEntitiesBetweenClockReads == 0 && std::chrono::steady_clock::now() >= deadline;
}

// The longer side of an entity's box, in pixels of lines.
double TilePainting::sideOf(std::uint32_t entity) const {
    const PlanBox& box = m_scene->boxAt(entity);
    return std::max(box.high.x - box.low.x, box.high.y - box.low.y) /
           (m_grid.unitsPerPixel() * m_grid.lineWidth());
}

bool TilePainting::paintFills(Deadline deadline) {
    const PlanView view = m_grid.viewOf(m_tile);
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(m_pixels);
    LinePainter lines(m_image, m_pixels, m_grid.lineWidth(), m_ground);
    for (; m_next < m_entities.size(); ++m_next) {
        if (mustPause(deadline)) {
            return false;
        }
        const std::uint32_t entity = m_entities[m_next];
        const double side = sideOf(entity);
        if (side > kCompactSide) {
            paintAppearance(painter, m_scene->appearanceAt(entity), view, {.ground = m_ground},
                            PaintParts::fills);
        } else if (side > kDotSide) {
            paintAreas(m_scene->compactAppearanceAt(entity), m_scene->boxAt(entity), lines);
        }
    }
    return true;
}

bool TilePainting::paintLines(Deadline deadline) {
    const PlanView view = m_grid.viewOf(m_tile);
    LinePainter lines(m_image, m_pixels, m_grid.lineWidth(), m_ground);
    for (; m_next < m_entities.size(); ++m_next) {
        if (mustPause(deadline)) {
            return false;
        }
        const std::uint32_t entity = m_entities[m_next];
        if (paintSmall(entity, lines)) {
            continue;
        }
        const Appearance& appearance = m_scene->appearanceAt(entity);
        drawStrokes(lines, appearance, 1.0 / m_grid.unitsPerPixel(), m_grid.lineWidth(),
                    [this](PlanPoint point) { return m_grid.toTilePixels(m_tile, point); });
        if (!appearance.labels.empty()) {
            Appearance labels;
            labels.labels = appearance.labels;
            QPainter painter(&m_image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setClipRect(m_pixels);
            paintAppearance(painter, labels, view, {.ground = m_ground},
                            PaintParts::linesAndLabels);
        }
    }
    return true;
}

// False when the entity needs its full appearance.
bool TilePainting::paintSmall(std::uint32_t entity, LinePainter& lines) {
    const double side = sideOf(entity);
    if (side > kCompactSide) {
        return false;
    }
    const PlanBox& box = m_scene->boxAt(entity);
    const CompactAppearance compactAppearance = m_scene->compactAppearanceAt(entity);
    if (side > kDotSide) {
        return paintCompact(compactAppearance, box, lines);
    }
    const PlanPoint middle{(box.low.x + box.high.x) / 2, (box.low.y + box.high.y) / 2};
    lines.dot(m_grid.toTilePixels(m_tile, middle), compactAppearance.rgb());
    return true;
}

bool TilePainting::paintCompact(CompactAppearance compactAppearance, const PlanBox& box,
                                LinePainter& lines) {
    const double pixelsOfUnit = 1.0 / m_grid.unitsPerPixel();
    if (compactAppearance.labelHeight() * pixelsOfUnit >= kLeastLabel) {
        return false;
    }
    CompactAppearance::Line line;
    for (CompactAppearance ahead = compactAppearance; ahead.next(line);) {
        if (line.period * pixelsOfUnit >= kLeastDashPeriod) {
            return false;
        }
    }
    while (compactAppearance.next(line)) {
        if (!line.isFill) {
            lines.chain(inPixels(line, box), line.rgb);
        }
    }
    return true;
}

void TilePainting::paintAreas(CompactAppearance compactAppearance, const PlanBox& box,
                              LinePainter& lines) {
    if (!compactAppearance.hasFills()) {
        return;
    }
    CompactAppearance::Line line;
    while (compactAppearance.next(line) && line.isFill) {
        lines.area(inPixels(line, box), line.rgb);
    }
}

const std::vector<PlanPoint>& TilePainting::inPixels(const CompactAppearance::Line& line,
                                                     const PlanBox& box) {
    m_points.clear();
    for (const std::uint32_t point : line.points) {
        m_points.push_back(m_grid.toTilePixels(m_tile, CompactAppearance::decoded(point, box)));
    }
    return m_points;
}

} // namespace orvex
