#include "comparisons.h"

#include "vectorMath.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr double kPointTolerance = 1e-10;

double normalisedAngle(double angle) {
    double turned = std::abs(angle);
    if (turned >= mledit::kTwoPi) {
        // trunc and not a conversion to int: no angle is too large.
        turned -= mledit::kTwoPi * std::trunc(turned / mledit::kTwoPi);
    }
    return angle < 0.0 ? mledit::kTwoPi - turned : turned;
}

} // namespace

bool mlineRealEqual(double a, double b, double tolerance) {
    if (std::abs(b) <= tolerance) {
        return std::abs(a) <= tolerance;
    }
    return std::abs(a - b) <= tolerance;
}

bool mlineRealBetween(double x, double a, double b, double tolerance) {
    const double low = std::min(a, b);
    const double high = std::max(a, b);
    return (x > low || mlineRealEqual(x, low, tolerance)) &&
           (x < high || mlineRealEqual(x, high, tolerance));
}

bool mlineAngleEqual(double a, double b, double tolerance) {
    if (a == 0.0 && b == 0.0) {
        return true;
    }
    return mlineRealEqual(normalisedAngle(a), normalisedAngle(b), tolerance);
}

bool IMvelaIsZero(double value, double tolerance) {
    return value <= tolerance && -tolerance <= value;
}

bool IMvelaRealEqual(double a, double b, double tolerance) {
    if (std::abs(b) <= tolerance) {
        return std::abs(a) <= tolerance;
    }
    return std::abs(a / b - 1.0) <= tolerance;
}

bool IMvelaPointEqual(const double* a, const double* b, double tolerance) {
    for (int i = 0; i < 3; ++i) {
        // Each test asks for what fails, so that a NaN never does.
        if (std::abs(b[i]) <= tolerance) {
            if (std::abs(a[i]) > tolerance) {
                return false;
            }
        } else if (std::abs(a[i] / b[i] - 1.0) >= tolerance) {
            return false;
        }
    }
    return true;
}

int gx_pt_equal(const double* a, const double* b) {
    return IMvelaPointEqual(a, b, kPointTolerance) ? 1 : 0;
}
