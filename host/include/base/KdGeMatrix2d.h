#pragma once

#include "KdGePoint2d.h"
#include "KdGeVector2d.h"

#include <array>

// A plane transform in homogeneous form, entry[row][column]; the columns are x axis, y axis and
// origin. A plain memory image of 72 bytes.
struct KdGeMatrix2d {
    std::array<std::array<double, 3>, 3> entry{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

    // What is set is got back bit for bit.
    void setCoordSystem(const KdGePoint2d& origin, const KdGeVector2d& xAxis,
                        const KdGeVector2d& yAxis) {
        entry = {{{xAxis.x, yAxis.x, origin.x}, {xAxis.y, yAxis.y, origin.y}, {0, 0, 1}}};
    }
    void getCoordSystem(KdGePoint2d& origin, KdGeVector2d& xAxis, KdGeVector2d& yAxis) const {
        xAxis = {entry[0][0], entry[1][0]};
        yAxis = {entry[0][1], entry[1][1]};
        origin = {entry[0][2], entry[1][2]};
    }
    friend bool operator==(const KdGeMatrix2d&, const KdGeMatrix2d&) = default;
};

static_assert(sizeof(KdGeMatrix2d) == 72);
