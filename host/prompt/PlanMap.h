#pragma once

namespace orvex {

// Where points of the plan go, x to xx * x + xy * y + dx, y alike.
struct PlanMap {
    double xx = 1.0;
    double xy = 0.0;
    double yx = 0.0;
    double yy = 1.0;
    double dx = 0.0;
    double dy = 0.0;

    [[nodiscard]] bool isShift() const { return xx == 1.0 && xy == 0.0 && yx == 0.0 && yy == 1.0; }
};

} // namespace orvex
