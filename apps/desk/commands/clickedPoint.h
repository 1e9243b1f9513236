#pragma once

#include "KdGePoint3d.h"

#include <string>

namespace orvex {

// Decimals that are worth showing where a pixel is `unitsPerPixel` drawing units wide.
int worthwhileDecimals(double unitsPerPixel);

// The point that a click at a world point of the plan means, in the current user coordinate system.
// Rounded well below a pixel, so that what the command line shows of it is all of it, and typing
// the same again picks the same.
KdGePoint3d clickedPoint(double worldX, double worldY, double unitsPerPixel);

// The same, but all of it: of a place that is somebody else's.
KdGePoint3d exactPoint(double worldX, double worldY);

// "x,y", or "x,y,z" off the plane of the system, as it is typed; reads back as the same point.
std::wstring pointText(const KdGePoint3d& point);

} // namespace orvex
