#include "canvasMarks.h"

#include "paintAppearance.h"
#include "readableColor.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QPolygonF>

#include <cmath>

namespace orvex {

namespace {

const QColor kCrosshairColor(0xB4, 0xB8, 0xC0);
const QColor kPickBoxColor(0xF0, 0xF0, 0xF0);
const QColor kRubberColor(0xE0, 0xA0, 0x40);
const QColor kWithinColor(0x6A, 0xA8, 0xF0);
const QColor kTouchedColor(0x68, 0xC8, 0x78);
constexpr int kWindowOpacity = 40;      // of 255
constexpr int kWordsMargin = 14;        // pixels from the cursor
constexpr double kHighlightWidth = 3.0; // pixels
constexpr int kAxisLength = 36;         // pixels
constexpr int kAxisMargin = 16;

std::uint32_t groundOf(const QPainter& painter) {
    return painter.background().color().rgb() & 0xFFFFFFU;
}

// Halfway to white on a dark ground, else to black.
std::uint32_t livelier(std::uint32_t rgb, std::uint32_t ground) {
    const std::uint32_t half = (rgb & 0xFEFEFEU) >> 1U;
    return isDark(ground) ? half + 0x7F7F7FU : half;
}

QRect wordsBox(const QPainter& painter, const QString& words) {
    return painter.fontMetrics().boundingRect(words).adjusted(-4, -2, 4, 2);
}

void paintWordsIn(QPainter& painter, const QRect& place, const QString& words,
                  const QColor& color) {
    painter.fillRect(place, kWordsGround);
    painter.setPen(color);
    painter.drawText(place, Qt::AlignCenter, words);
}

void drawAxis(QPainter& painter, const QPointF& origin, const KdGeVector3d& axis,
              const QColor& color, const QString& name) {
    const QPointF direction(axis.x * kAxisLength, -axis.y * kAxisLength);
    const double length = std::hypot(direction.x(), direction.y());
    if (!(length > 1.0)) {
        return; // it points to the viewer
    }
    const QPointF tip = origin + direction;
    const QPointF along = direction / length;
    const QPointF across(-along.y(), along.x());
    const QColor shown = onGround(painter, color);
    painter.setPen(QPen(shown, 1.5));
    painter.drawLine(origin, tip);
    painter.setBrush(shown);
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(
        QPolygonF{{tip, tip - along * 8.0 + across * 3.0, tip - along * 8.0 - across * 3.0}});
    painter.setPen(shown);
    painter.drawText(QRectF(tip + along * 9.0 - QPointF(8, 8), QSizeF(16, 16)), Qt::AlignCenter,
                     name);
}

} // namespace

QColor onGround(const QPainter& painter, const QColor& color) {
    return QColor::fromRgb(readableRgb(color.rgb(), groundOf(painter)));
}

QColor glowColor(const QPainter& painter) {
    return isDark(groundOf(painter)) ? QColor(0x5A, 0xA8, 0xF0) : QColor(0x00, 0x50, 0xE0);
}

void paintCrosshair(QPainter& painter, const QPoint& cursor, const QSize& view, int pickBox) {
    painter.setPen(onGround(painter, kCrosshairColor));
    const int gap = pickBox + 1;
    painter.drawLine(0, cursor.y(), cursor.x() - gap, cursor.y());
    painter.drawLine(cursor.x() + gap, cursor.y(), view.width(), cursor.y());
    painter.drawLine(cursor.x(), 0, cursor.x(), cursor.y() - gap);
    painter.drawLine(cursor.x(), cursor.y() + gap, cursor.x(), view.height());
    if (pickBox >= 0) {
        paintPickBox(painter, cursor, pickBox);
    }
}

void paintPickBox(QPainter& painter, const QPoint& cursor, int pickBox) {
    painter.setPen(onGround(painter, kPickBoxColor));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cursor.x() - pickBox, cursor.y() - pickBox, 2 * pickBox, 2 * pickBox);
}

void paintRubberLine(QPainter& painter, const PlanView& view, PlanPoint base, PlanPoint end) {
    Appearance appearance;
    appearance.strokes.push_back(
        {.points = {base, end}, .rgb = onGround(painter, kRubberColor).rgb()});
    painter.setRenderHint(QPainter::Antialiasing);
    paintAppearance(painter, appearance, view, {});
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void paintRubberWindow(QPainter& painter, const QPoint& oneCorner, const QPoint& otherCorner) {
    QColor fill = kRubberColor;
    fill.setAlpha(40);
    painter.setPen(onGround(painter, kRubberColor));
    painter.setBrush(fill);
    painter.drawRect(QRect(oneCorner, otherCorner).normalized());
    painter.setBrush(Qt::NoBrush);
}

void paintSelectionWindow(QPainter& painter, const QPoint& first, const QPoint& second,
                          const QString& words) {
    const bool isCrossing = isCrossingWindow(first.x(), second.x());
    const QColor color = isCrossing ? kTouchedColor : kWithinColor;
    QColor fill = color;
    fill.setAlpha(kWindowOpacity);
    painter.setPen(QPen(onGround(painter, color), 1.0, isCrossing ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(fill);
    painter.drawPolygon(
        QPolygon({first, {second.x(), first.y()}, second, {first.x(), second.y()}}));
    painter.setBrush(Qt::NoBrush);
    const QPoint corner(second.x() + (isCrossing ? -kWordsMargin : kWordsMargin),
                        second.y() + (second.y() < first.y() ? -kWordsMargin : kWordsMargin));
    const QRect box = wordsBox(painter, words);
    paintWordsIn(painter,
                 {corner.x() - (isCrossing ? box.width() : 0), corner.y() - box.height() / 2,
                  box.width(), box.height()},
                 words, color);
}

void paintWords(QPainter& painter, const QPointF& corner, const QString& words) {
    paintWordsIn(painter, {corner.toPoint(), wordsBox(painter, words).size()}, words, kRubberColor);
}

void paintHighlight(QPainter& painter, const PlanView& view, const Appearance& appearance) {
    const std::uint32_t ground = groundOf(painter);
    Appearance bright;
    bright.strokes = appearance.strokes;
    bright.dashPatterns = appearance.dashPatterns;
    bright.labels = appearance.labels;
    for (Stroke& stroke : bright.strokes) {
        stroke.rgb = livelier(readableRgb(stroke.rgb, ground), ground);
    }
    for (Label& label : bright.labels) {
        label.rgb = livelier(readableRgb(label.rgb, ground), ground);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    paintAppearance(painter, bright, view, {.lineWidth = kHighlightWidth},
                    PaintParts::linesAndLabels);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void paintPreview(QPainter& painter, const PlanView& view, const Appearance& appearance) {
    painter.setRenderHint(QPainter::Antialiasing);
    paintAppearance(painter, appearance, view, {.ground = groundOf(painter)});
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void paintAxes(QPainter& painter, const QSize& view, const KdGeVector3d& xAxis,
               const KdGeVector3d& yAxis) {
    // As far from the corner as axes that point there need.
    const double left = kAxisMargin - std::min({0.0, xAxis.x, yAxis.x}) * kAxisLength;
    const double low = kAxisMargin - std::min({0.0, xAxis.y, yAxis.y}) * kAxisLength;
    const QPointF origin(left, view.height() - low);
    painter.setRenderHint(QPainter::Antialiasing);
    drawAxis(painter, origin, xAxis, QColor(0xD0, 0x60, 0x58), QStringLiteral("X"));
    drawAxis(painter, origin, yAxis, QColor(0x60, 0xB0, 0x60), QStringLiteral("Y"));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
}

} // namespace orvex
