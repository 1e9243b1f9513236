#pragma once

// Absolute tolerances of vector comparisons, in drawing units.
struct KdGeTol {
    double equalVector = 1e-10;
    double equalPoint = 1e-10;
};
