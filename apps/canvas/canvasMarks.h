#pragma once

#include "Appearance.h"
#include "KdGeVector3d.h"
#include "PlanView.h"

#include <QColor>
#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QString>

class QPainter;

namespace orvex {

// A selection window drawn from right to left takes what it touches, else what lies within it.
inline bool isCrossingWindow(double firstX, double secondX) {
    return secondX < firstX;
}

// What moves over the picture of the plan. Painters have the view's pixels as coordinates and the
// plan's ground as background, on which every mark has to be seen.

// Below words over the plan, whatever its ground.
inline const QColor kWordsGround(0, 0, 0, 200);

// The colour as it can be read on the painter's background.
QColor onGround(const QPainter& painter, const QColor& color);

// A glow over what is selected or was picked, through which it shows: so wide in pixels, and of a
// colour that has a contrast of 3 by this opacity, too.
inline constexpr double kGlowWidth = 5.0;
inline constexpr double kGlowOpacity = 0.65;
QColor glowColor(const QPainter& painter);

// Across the whole view, with the pick box in the middle unless `pickBox` is negative.
void paintCrosshair(QPainter& painter, const QPoint& cursor, const QSize& view, int pickBox);
// The square of 2 * pickBox + 1 pixels.
void paintPickBox(QPainter& painter, const QPoint& cursor, int pickBox);
void paintRubberLine(QPainter& painter, const PlanView& view, PlanPoint base, PlanPoint end);
void paintRubberWindow(QPainter& painter, const QPoint& oneCorner, const QPoint& otherCorner);
// Dashed and in another colour for what it touches; the dashes start at the first corner. `words`
// stand at the second.
void paintSelectionWindow(QPainter& painter, const QPoint& first, const QPoint& second,
                          const QString& words);
void paintWords(QPainter& painter, const QPointF& corner, const QString& words);
// An appearance on top of the picture: thicker and brighter than it is there, or as it would be.
void paintHighlight(QPainter& painter, const PlanView& view, const Appearance& appearance);
void paintPreview(QPainter& painter, const PlanView& view, const Appearance& appearance);
// The axes of the user's coordinate system, in the lower left corner.
void paintAxes(QPainter& painter, const QSize& view, const KdGeVector3d& xAxis,
               const KdGeVector3d& yAxis);

} // namespace orvex
