#pragma once

// Scale factors along the axes. Plain memory images of 16 and 24 bytes.
struct KdGeScale2d {
    double sx = 1.0;
    double sy = 1.0;

    friend bool operator==(const KdGeScale2d&, const KdGeScale2d&) = default;
};

struct KdGeScale3d {
    double sx = 1.0;
    double sy = 1.0;
    double sz = 1.0;

    friend bool operator==(const KdGeScale3d&, const KdGeScale3d&) = default;
};

static_assert(sizeof(KdGeScale2d) == 16 && sizeof(KdGeScale3d) == 24);
