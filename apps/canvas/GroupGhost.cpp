#include "GroupGhost.h"

#include "Scene.h"
#include "canvasMarks.h"
#include "paintAppearance.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvex {

namespace {

// More lines than these are too slow to be turned with every move of the mouse.
constexpr std::size_t kMostStrokes = 4000;
constexpr std::size_t kMostBoxes = 20'000;
constexpr std::uint32_t kGhostRgb = 0xE0A040;
constexpr double kMargin = 2.0; // pixels around the picture, for the width of lines

Stroke outlineOf(const PlanBox& box) {
    return {
        .points = {box.low, {box.high.x, box.low.y}, box.high, {box.low.x, box.high.y}, box.low},
        .rgb = kGhostRgb};
}

PlanPoint mapped(const PlanMap& map, const PlanPoint& p) {
    return {map.xx * p.x + map.xy * p.y + map.dx, map.yx * p.x + map.yy * p.y + map.dy};
}

} // namespace

void GroupGhost::setGroup(AimGroup group) {
    m_group = std::move(group);
    m_isCollected = false;
    m_hasBoxes = false;
    m_strokes.clear();
    m_picture = QPixmap();
    m_shown = {};
}

void GroupGhost::paint(QPainter& painter, Scene& scene, const PlanView& view, double ratio,
                       PlanPoint point) {
    const std::optional<PlanMap> map = m_group.map(point);
    if (!map) {
        return;
    }
    if (!m_isCollected) {
        collect(scene);
    }
    if (map->isShift()) {
        paintShifted(painter, view, ratio, *map);
    } else {
        paintLines(painter, view, *map);
    }
}

void GroupGhost::collect(Scene& scene) {
    m_isCollected = true;
    for (KdDbStub* const entity : m_group.entities) {
        for (Stroke stroke : scene.appearance(*entity).strokes) {
            stroke.dashes = 0; // their patterns belong to the entity
            m_strokes.push_back(std::move(stroke));
        }
        if (m_strokes.size() > kMostStrokes) {
            m_hasBoxes = true;
            break;
        }
    }
    if (!m_hasBoxes) {
        return;
    }
    m_strokes.clear();
    PlanBox all;
    for (KdDbStub* const entity : m_group.entities) {
        const PlanBox box = scene.appearance(*entity).box();
        all.include(box);
        if (m_strokes.size() < kMostBoxes) {
            m_strokes.push_back(outlineOf(box));
        }
    }
    m_strokes.push_back(outlineOf(all));
}

void GroupGhost::paintShifted(QPainter& painter, const PlanView& view, double ratio,
                              const PlanMap& map) {
    const std::uint32_t ground = painter.background().color().rgb() & 0xFFFFFFU;
    if (m_picture.isNull() || !(stateOf(view) == m_shown) || ground != m_ground ||
        m_picture.devicePixelRatio() != ratio) {
        m_shown = stateOf(view);
        m_ground = ground;
        // As far as a shift can bring into view what is outside of it.
        PlanBox box;
        for (const Stroke& stroke : m_strokes) {
            for (const PlanPoint& point : stroke.points) {
                box.include(view.toPixels(point));
            }
        }
        const double left = std::max(box.low.x - kMargin, -1.0 * view.width());
        const double top = std::max(box.low.y - kMargin, -1.0 * view.height());
        const double right = std::min(box.high.x + kMargin, 2.0 * view.width());
        const double bottom = std::min(box.high.y + kMargin, 2.0 * view.height());
        m_corner = {std::floor(left), std::floor(top)};
        const QSizeF size(std::max(right - m_corner.x(), 1.0),
                          std::max(bottom - m_corner.y(), 1.0));
        m_picture = QPixmap((size * ratio).toSize());
        m_picture.setDevicePixelRatio(ratio);
        m_picture.fill(Qt::transparent);
        QPainter inside(&m_picture);
        inside.setRenderHint(QPainter::Antialiasing);
        inside.translate(-m_corner);
        Appearance picture;
        picture.strokes = m_strokes;
        paintAppearance(inside, picture, view, {.ground = ground});
    }
    const double unit = 1.0 / view.unitsPerPixel();
    painter.drawPixmap(m_corner + QPointF(map.dx * unit, -map.dy * unit), m_picture);
}

void GroupGhost::paintLines(QPainter& painter, const PlanView& view, const PlanMap& map) const {
    Appearance ghost;
    ghost.strokes = m_strokes;
    for (Stroke& stroke : ghost.strokes) {
        for (PlanPoint& point : stroke.points) {
            point = mapped(map, point);
        }
    }
    paintPreview(painter, view, ghost);
    if (m_hasBoxes) {
        paintWords(painter, {kMargin, kMargin},
                   QCoreApplication::translate("Canvas", "%1 entities, shown by their boxes")
                       .arg(m_group.entities.size()));
    }
}

} // namespace orvex
