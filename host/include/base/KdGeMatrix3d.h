#pragma once

#include "KdGePoint3d.h"
#include "KdGeVector3d.h"

#include <array>

// A transform in space in homogeneous form, entry[row][column]; the columns are x, y and z axis
// and origin. A plain memory image of 128 bytes.
struct KdGeMatrix3d {
    std::array<std::array<double, 4>, 4> entry{
        {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

    // What is set is got back bit for bit.
    void setCoordSystem(const KdGePoint3d& origin, const KdGeVector3d& xAxis,
                        const KdGeVector3d& yAxis, const KdGeVector3d& zAxis) {
        entry = {{{xAxis.x, yAxis.x, zAxis.x, origin.x},
                  {xAxis.y, yAxis.y, zAxis.y, origin.y},
                  {xAxis.z, yAxis.z, zAxis.z, origin.z},
                  {0, 0, 0, 1}}};
    }
    void getCoordSystem(KdGePoint3d& origin, KdGeVector3d& xAxis, KdGeVector3d& yAxis,
                        KdGeVector3d& zAxis) const {
        xAxis = {entry[0][0], entry[1][0], entry[2][0]};
        yAxis = {entry[0][1], entry[1][1], entry[2][1]};
        zAxis = {entry[0][2], entry[1][2], entry[2][2]};
        origin = {entry[0][3], entry[1][3], entry[2][3]};
    }
    friend bool operator==(const KdGeMatrix3d&, const KdGeMatrix3d&) = default;
};

static_assert(sizeof(KdGeMatrix3d) == 128);
