#pragma once

#include "KdGePoint3d.h"

// Whether a prompt for a multiline may end with this entity: true for an entity that opens as a
// multiline. Leaves nothing open.
bool needBreak(const long* name);

// Whether the segments p0 p1 and p2 p3 lie on one line, at the host's global tolerance.
bool isCollinear(KdGePoint3d p0, KdGePoint3d p1, KdGePoint3d p2, KdGePoint3d p3);
