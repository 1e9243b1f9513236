#include "guideMarks.h"

#include "canvasMarks.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QPolygonF>

#include <cmath>

namespace orvex {

namespace {

const QColor kMarkerColor(0xF0, 0xC0, 0x40);
const QColor kRayColor(0x60, 0xB0, 0x90);
constexpr double kReach = 6.0;       // of a marker to each side, pixels
constexpr double kNameMargin = 12.0; // of the name from the point, pixels
constexpr double kFarAway = 1e5;     // pixels; what reaches farther is cut off by the view

QPointF pixelOf(const PlanView& view, PlanPoint plan) {
    const PlanPoint pixel = view.toPixels(plan);
    return {pixel.x, pixel.y};
}

void drawCross(QPainter& painter, const QPointF& at) {
    painter.drawLine(at - QPointF(kReach, kReach), at + QPointF(kReach, kReach));
    painter.drawLine(at - QPointF(kReach, -kReach), at + QPointF(kReach, -kReach));
}

void drawMarker(QPainter& painter, const QPointF& at, SnapMode mode) {
    const QRectF square(at - QPointF(kReach, kReach), at + QPointF(kReach, kReach));
    const QPointF left = square.bottomLeft();
    const QPointF right = square.bottomRight();
    switch (mode) {
    case SnapMode::vertex: // a diamond
        painter.drawPolygon(
            QPolygonF{{at - QPointF(0, kReach * 1.3), at + QPointF(kReach * 1.3, 0),
                       at + QPointF(0, kReach * 1.3), at - QPointF(kReach * 1.3, 0)}});
        break;
    case SnapMode::elementEnd: // a square with a dot
        painter.drawRect(square);
        painter.drawRect(QRectF(at - QPointF(1, 1), QSizeF(2, 2)));
        break;
    case SnapMode::end:
        painter.drawRect(square);
        break;
    case SnapMode::axisCrossing:
        painter.drawEllipse(square);
        drawCross(painter, at);
        break;
    case SnapMode::intersection:
        drawCross(painter, at);
        break;
    case SnapMode::middle: // a triangle
        painter.drawPolygon(QPolygonF{{left, right, at - QPointF(0, kReach)}});
        break;
    case SnapMode::perpendicular: // an angle with its square
        painter.drawPolyline(QPolygonF{{square.topLeft(), left, right}});
        painter.drawPolyline(QPolygonF{{left - QPointF(0, kReach), at, left + QPointF(kReach, 0)}});
        break;
    case SnapMode::nearest: // an hourglass
        painter.drawPolygon(QPolygonF{{square.topLeft(), square.topRight(), left, right}});
        break;
    }
}

void drawName(QPainter& painter, const PlanView& view, const QPointF& at, const QString& name) {
    const QFontMetricsF metrics(painter.font());
    QRectF box = metrics.boundingRect(name).adjusted(-4, -2, 4, 2);
    box.moveBottomLeft(at + QPointF(kNameMargin, -kNameMargin));
    if (box.right() > view.width()) {
        box.moveRight(at.x() - kNameMargin);
    }
    if (box.top() < 0.0) {
        box.moveTop(at.y() + kNameMargin);
    }
    painter.fillRect(box, kWordsGround);
    painter.setPen(kMarkerColor);
    painter.drawText(box, Qt::AlignCenter, name);
}

// Along the ray to the edge of the view and beyond.
void drawRay(QPainter& painter, const QPointF& from, const QPointF& through) {
    const QPointF along = through - from;
    const double length = std::hypot(along.x(), along.y());
    if (!(length > 0.0 && length < kFarAway)) {
        return;
    }
    painter.setPen(QPen(onGround(painter, kRayColor), 1.0, Qt::DotLine));
    painter.drawLine(from, from + along * (length + 4000.0) / length);
}

} // namespace

void paintGuide(QPainter& painter, const PlanView& view, const GuidedPoint& point) {
    const QPointF at = pixelOf(view, point.at);
    if (!(std::abs(at.x()) < kFarAway && std::abs(at.y()) < kFarAway)) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    if (point.rayFrom) {
        drawRay(painter, pixelOf(view, *point.rayFrom), at);
    }
    if (point.attractor) {
        painter.setPen(QPen(onGround(painter, kMarkerColor), 1.0, Qt::DashLine));
        painter.drawLine(pixelOf(view, *point.attractor), at);
    }
    if (point.marker) {
        painter.setPen(QPen(onGround(painter, kMarkerColor), 2.0));
        drawMarker(painter, at, *point.marker);
    }
    if (!point.name.isEmpty()) {
        drawName(painter, view, at, point.name);
    }
    painter.restore();
}

void paintTypedPoint(QPainter& painter, const PlanView& view, PlanPoint point) {
    const QPointF at = pixelOf(view, point);
    if (!(std::abs(at.x()) < kFarAway && std::abs(at.y()) < kFarAway)) {
        return;
    }
    painter.setPen(QPen(onGround(painter, kMarkerColor), 1.0));
    painter.drawLine(at - QPointF(kReach, 0), at + QPointF(kReach, 0));
    painter.drawLine(at - QPointF(0, kReach), at + QPointF(0, kReach));
}

} // namespace orvex
