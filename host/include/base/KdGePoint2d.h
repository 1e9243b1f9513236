#pragma once

// A place in a plane. A plain memory image of 16 bytes.
struct KdGePoint2d {
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const KdGePoint2d&, const KdGePoint2d&) = default;
};

static_assert(sizeof(KdGePoint2d) == 16);
