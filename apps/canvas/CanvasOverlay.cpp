#include "CanvasOverlay.h"

#include "Scene.h"
#include "canvasMarks.h"
#include "paintAppearance.h"

#include <QPainter>
#include <QPen>

#include <cstddef>
#include <utility>

namespace orvex {

namespace {

const QColor kPlannedColor(0x58, 0xC8, 0x78);
const QColor kLeftColor(0xFF, 0x8A, 0x3C);
constexpr double kMarkRadius = 7.0; // pixels
// More of them than these are shown by their boxes, which cost less than their lines.
constexpr std::size_t kMostGlowing = 2000;

bool meets(const PlanBox& a, const PlanBox& b) {
    return !a.isEmpty() && a.low.x <= b.high.x && a.high.x >= b.low.x && a.low.y <= b.high.y &&
           a.high.y >= b.low.y;
}

Appearance outlineOf(const PlanBox& box) {
    Appearance outline;
    outline.strokes.push_back(
        {.points = {box.low, {box.high.x, box.low.y}, box.high, {box.low.x, box.high.y}, box.low}});
    return outline;
}

Appearance glowOf(const Appearance& appearance, const QColor& color) {
    Appearance glow;
    glow.strokes = appearance.strokes;
    for (Stroke& stroke : glow.strokes) {
        stroke.dashes = 0;
        stroke.rgb = color.rgb() & 0xFFFFFFU;
    }
    return glow;
}

// A ring where something is to be done, a ring with a cross where it couldn't.
void drawMark(QPainter& painter, const QPointF& at, MarkKind kind) {
    painter.setPen(
        QPen(onGround(painter, kind == MarkKind::left ? kLeftColor : kPlannedColor), 2.0));
    painter.drawEllipse(at, kMarkRadius, kMarkRadius);
    if (kind == MarkKind::left) {
        const double reach = kMarkRadius * 0.7;
        painter.drawLine(at - QPointF(reach, reach), at + QPointF(reach, reach));
        painter.drawLine(at - QPointF(reach, -reach), at + QPointF(reach, -reach));
    }
}

} // namespace

void CanvasOverlay::setSelected(std::vector<KdDbStub*> entities) {
    m_selected = std::move(entities);
    m_isStale = true;
}

void CanvasOverlay::setMarks(std::vector<CanvasMark> marks) {
    m_marks = std::move(marks);
    m_isStale = true;
}

void CanvasOverlay::clear() {
    setSelected({});
    setMarks({});
}

void CanvasOverlay::paint(QPainter& painter, Scene& scene, const PlanView& view, double ratio) {
    if (m_selected.empty() && m_marks.empty()) {
        return;
    }
    const QSize size(view.width(), view.height());
    const QColor ground = painter.background().color();
    if (m_isStale || stateOf(view) != m_shown || ground != m_ground ||
        m_picture.size() != size * ratio || m_picture.devicePixelRatio() != ratio) {
        render(scene, view, ratio, ground);
    }
    painter.drawPixmap(0, 0, m_picture);
}

void CanvasOverlay::render(Scene& scene, const PlanView& view, double ratio, const QColor& ground) {
    m_isStale = false;
    m_ground = ground;
    m_shown = stateOf(view);
    const QSize size(view.width(), view.height());
    m_picture = QPixmap(size * ratio);
    m_picture.setDevicePixelRatio(ratio);
    m_picture.fill(Qt::transparent);
    QPainter painter(&m_picture);
    painter.setBackground(ground);
    painter.setRenderHint(QPainter::Antialiasing);
    PlanBox seen;
    seen.include(view.toPlan({-kGlowWidth, -kGlowWidth}));
    seen.include(view.toPlan({size.width() + kGlowWidth, size.height() + kGlowWidth}));
    painter.setOpacity(kGlowOpacity);
    const QColor glow = glowColor(painter);
    const bool byBoxes = m_selected.size() > kMostGlowing;
    for (KdDbStub* const entity : m_selected) {
        const Appearance& appearance = scene.appearance(*entity);
        const PlanBox box = appearance.box();
        if (meets(box, seen)) {
            paintAppearance(painter, glowOf(byBoxes ? outlineOf(box) : appearance, glow), view,
                            {.lineWidth = kGlowWidth}, PaintParts::linesAndLabels);
        }
    }
    painter.setOpacity(1.0);
    painter.setBrush(Qt::NoBrush);
    const QRectF near =
        QRectF(QPointF(), size).adjusted(-kMarkRadius, -kMarkRadius, kMarkRadius, kMarkRadius);
    for (const CanvasMark& mark : m_marks) {
        const PlanPoint pixel = view.toPixels(mark.at);
        if (near.contains(pixel.x, pixel.y)) {
            drawMark(painter, {pixel.x, pixel.y}, mark.kind);
        }
    }
}

} // namespace orvex
