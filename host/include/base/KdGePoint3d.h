#pragma once

#include "KdGeVector3d.h"

// A place in space, drawing units. A plain memory image of 24 bytes.
struct KdGePoint3d {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    friend KdGeVector3d operator-(const KdGePoint3d& a, const KdGePoint3d& b) {
        return {a.x - b.x, a.y - b.y, a.z - b.z};
    }
    friend KdGePoint3d operator+(const KdGePoint3d& p, const KdGeVector3d& v) {
        return {p.x + v.x, p.y + v.y, p.z + v.z};
    }
    friend bool operator==(const KdGePoint3d&, const KdGePoint3d&) = default;
};

static_assert(sizeof(KdGePoint3d) == 24);
