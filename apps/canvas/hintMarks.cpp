#include "hintMarks.h"

#include "canvasMarks.h"
#include "paintAppearance.h"

#include <QColor>
#include <QPainter>
#include <QPen>

#include <algorithm>

namespace orvex {

namespace {

const QColor kLitColor(0x5A, 0xA8, 0xF0);
const QColor kGoneColor(0xF0, 0x50, 0x48);
const QColor kNewColor(0x70, 0xE0, 0x90);
const QColor kNoteColor(0xE0, 0xE4, 0xEA);
const QColor kRefusalColor(0xFF, 0x9A, 0x5C);
constexpr double kGhostWidth = 3.0; // pixels; what stays covers what goes
constexpr double kGoneWidth = 2.0;
constexpr double kPointReach = 6.0;
constexpr int kWordsMargin = 16; // pixels from the cursor
constexpr int kFlashReach = 4;   // pixels beyond the pick box

// Lines in one colour, without gaps of line types.
void paintLines(QPainter& painter, const PlanView& view, const Appearance& appearance,
                const QColor& color, double width) {
    Appearance lines;
    lines.strokes = appearance.strokes;
    const std::uint32_t rgb = color.rgb() & 0xFFFFFFU;
    for (Stroke& stroke : lines.strokes) {
        stroke.dashes = 0;
        stroke.rgb = rgb;
    }
    paintAppearance(painter, lines, view, {.lineWidth = width}, PaintParts::linesAndLabels);
}

// A cross in a ring.
void paintFirstPoint(QPainter& painter, const PlanView& view, PlanPoint place) {
    const PlanPoint pixel = view.toPixels(place);
    const QPointF at(pixel.x, pixel.y);
    painter.setPen(QPen(onGround(painter, kLitColor), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(at, kPointReach, kPointReach);
    painter.drawLine(at - QPointF(kPointReach, 0), at + QPointF(kPointReach, 0));
    painter.drawLine(at - QPointF(0, kPointReach), at + QPointF(0, kPointReach));
}

} // namespace

void paintTool(QPainter& painter, const PlanView& view, const CanvasHints& hints) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(kGlowOpacity);
    for (const Appearance& appearance : hints.lit) {
        paintLines(painter, view, appearance, glowColor(painter), kGlowWidth);
    }
    painter.setOpacity(1.0);
    for (const Appearance& appearance : hints.before) {
        paintLines(painter, view, appearance, onGround(painter, kGoneColor), kGoneWidth);
    }
    for (const Appearance& appearance : hints.after) {
        paintLines(painter, view, appearance, onGround(painter, kNewColor), kGhostWidth);
    }
    if (hints.firstPoint) {
        paintFirstPoint(painter, view, *hints.firstPoint);
    }
    painter.restore();
}

void paintWords(QPainter& painter, const QPoint& cursor, const QSize& view, const QString& words,
                WordsKind kind) {
    QRect box = painter.fontMetrics().boundingRect(words).adjusted(-5, -3, 5, 3);
    box.moveTopLeft(cursor + QPoint(kWordsMargin, kWordsMargin));
    if (box.right() > view.width()) {
        box.moveRight(cursor.x() - kWordsMargin);
    }
    if (box.bottom() > view.height()) {
        box.moveBottom(cursor.y() - kWordsMargin);
    }
    box.moveLeft(std::max(box.left(), 0));
    painter.fillRect(box, kWordsGround);
    painter.setPen(kind == WordsKind::refusal ? kRefusalColor : kNoteColor);
    painter.drawText(box, Qt::AlignCenter, words);
}

void paintPickFlash(QPainter& painter, const QPoint& cursor, int pickBox) {
    const int reach = pickBox + kFlashReach;
    painter.setPen(QPen(onGround(painter, kRefusalColor), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cursor.x() - reach, cursor.y() - reach, 2 * reach, 2 * reach);
}

} // namespace orvex
