#include "TilePainting.h"

#include "LinePainter.h"
#include "lookStrokes.h"
#include "paintAppearance.h"

#include <QPainter>

namespace orvex {

namespace {

constexpr double kDotSide = 1.5; // pixels; what is no larger shows as a dot
constexpr std::size_t kEntitiesBetweenLooksAtTheClock = 8;

bool isOver(std::chrono::steady_clock::time_point deadline) {
    return std::chrono::steady_clock::now() >= deadline;
}

} // namespace

TilePainting::TilePainting(Scene& scene, const PixelGrid& grid, const TileKey& tile,
                           const QImage& before, const QRect& pixels, int lineWidth)
    : m_scene(&scene), m_grid(grid), m_tile(tile), m_pixels(pixels), m_image(before),
      m_lineWidth(lineWidth), m_places(scene.placesIn(grid.planOf(tile, pixels))) {
    if (m_image.isNull()) {
        m_image = QImage(PixelGrid::kTileSide, PixelGrid::kTileSide, QImage::Format_RGB32);
    }
    QPainter painter(&m_image);
    painter.fillRect(pixels, QColor::fromRgb(kGroundRgb));
}

bool TilePainting::advance(std::chrono::steady_clock::time_point deadline) {
    if (m_pass == Pass::fills && pass(deadline, true)) {
        m_pass = Pass::lines;
        m_next = 0;
    }
    if (m_pass == Pass::lines && pass(deadline, false)) {
        m_pass = Pass::done;
    }
    return m_pass == Pass::done;
}

// All fills go below all lines, so that none hides a line.
bool TilePainting::pass(std::chrono::steady_clock::time_point deadline, bool fills) {
    const PlanView view = m_grid.viewOf(m_tile);
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(m_pixels);
    for (; m_next < m_places.size(); ++m_next) {
        if (m_next % kEntitiesBetweenLooksAtTheClock == 0 && isOver(deadline)) {
            return false;
        }
        fills ? paintFills(m_places[m_next], painter, view)
              : paintLines(m_places[m_next], painter, view);
    }
    return true;
}

bool TilePainting::isDot(std::uint32_t place) const {
    const PlanBox& box = m_scene->boxAt(place);
    const double side = kDotSide * m_lineWidth * m_grid.unitsPerPixel();
    return box.high.x - box.low.x <= side && box.high.y - box.low.y <= side;
}

void TilePainting::paintFills(std::uint32_t place, QPainter& painter, const PlanView& view) {
    if (isDot(place) || !m_scene->hasFillsAt(place)) {
        return;
    }
    paintAppearance(painter, m_scene->lookAt(place), view, {}, PaintParts::fills);
}

void TilePainting::paintLines(std::uint32_t place, QPainter& painter, const PlanView& view) {
    LinePainter lines(m_image, m_pixels, m_lineWidth);
    if (isDot(place)) {
        const PlanBox& box = m_scene->boxAt(place);
        const PlanPoint middle{(box.low.x + box.high.x) / 2, (box.low.y + box.high.y) / 2};
        lines.dot(m_grid.toTilePixels(m_tile, middle), m_scene->dotColorAt(place));
        return;
    }
    const Appearance& look = m_scene->lookAt(place);
    drawStrokes(lines, look, 1.0 / m_grid.unitsPerPixel(), m_lineWidth,
                [this](PlanPoint point) { return m_grid.toTilePixels(m_tile, point); });
    if (!look.labels.empty()) {
        Appearance labels;
        labels.labels = look.labels;
        paintAppearance(painter, labels, view, {}, PaintParts::linesAndLabels);
    }
}

} // namespace orvex
