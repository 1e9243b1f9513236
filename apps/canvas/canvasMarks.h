#pragma once

#include "Appearance.h"
#include "KdGeVector3d.h"
#include "PlanView.h"

#include <QPoint>
#include <QSize>

class QPainter;

namespace orvex {

// What moves over the picture of the plan. Painters have the view's pixels as coordinates.

// Across the whole view, with the pick box in the middle unless `pickBox` is negative.
void paintCrosshair(QPainter& painter, const QPoint& cursor, const QSize& view, int pickBox);
// The square of 2 * pickBox + 1 pixels.
void paintPickBox(QPainter& painter, const QPoint& cursor, int pickBox);
void paintRubberLine(QPainter& painter, const PlanView& view, PlanPoint base, const QPoint& cursor);
void paintRubberWindow(QPainter& painter, const QPoint& oneCorner, const QPoint& otherCorner);
// An appearance on top of the picture: thicker and brighter than it is there, or as it would be.
void paintHighlight(QPainter& painter, const PlanView& view, const Appearance& appearance);
void paintPreview(QPainter& painter, const PlanView& view, const Appearance& appearance);
// The axes of the user's coordinate system, in the lower left corner.
void paintAxes(QPainter& painter, const QSize& view, const KdGeVector3d& xAxis,
               const KdGeVector3d& yAxis);

} // namespace orvex
