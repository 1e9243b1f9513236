#pragma once

#include "GuidedPoint.h"
#include "PlanView.h"

class QPainter;

namespace orvex {

// The sign of what a point was drawn to with its name, a thin line from what attracted the cursor,
// and the ray that it was kept on. The painter has the view's pixels as coordinates.
void paintGuide(QPainter& painter, const PlanView& view, const GuidedPoint& point);

// The sign of a point that isn't the cursor's.
void paintTypedPoint(QPainter& painter, const PlanView& view, PlanPoint point);

} // namespace orvex
