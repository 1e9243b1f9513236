#pragma once

// A direction or displacement in a plane. A plain memory image of 16 bytes.
struct KdGeVector2d {
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const KdGeVector2d&, const KdGeVector2d&) = default;
};

static_assert(sizeof(KdGeVector2d) == 16);
