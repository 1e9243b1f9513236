#pragma once

#include "KdGePoint3d.h"

namespace orvex {

// Between the user's coordinate system of the current drawing and the world's.
KdGePoint3d userToWorld(const KdGePoint3d& point);
KdGePoint3d worldToUser(const KdGePoint3d& point);
KdGeVector3d userDirectionToWorld(const KdGeVector3d& direction);

} // namespace orvex
