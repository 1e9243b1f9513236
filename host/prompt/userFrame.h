#pragma once

#include "KdGePoint3d.h"

namespace orvex {

// Between the user's coordinate system of the current drawing and the world's.
KdGePoint3d userToWorld(const KdGePoint3d& point);
KdGePoint3d worldToUser(const KdGePoint3d& point);
KdGeVector3d userDirectionToWorld(const KdGeVector3d& direction);

// The direction from one world point to another in the XY plane of the user's system, degrees
// counter-clockwise from its X axis, without the last digits that are rounding.
double userDegrees(const KdGePoint3d& from, const KdGePoint3d& to);

} // namespace orvex
