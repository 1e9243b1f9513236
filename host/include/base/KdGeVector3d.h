#pragma once

#include "KdGeContext.h"

#include <array>
#include <cmath>

// A direction or displacement in space, drawing units. A plain memory image of 24 bytes.
struct KdGeVector3d {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    [[nodiscard]] double length() const { return std::sqrt(x * x + y * y + z * z); }

    [[nodiscard]] bool isZeroLength(const KdGeTol& tol = KdGeContext::gTol) const {
        return length() <= tol.equalVector;
    }

    // A vector of no length stays as it is, never NaN.
    KdGeVector3d& normalize(const KdGeTol& tol = KdGeContext::gTol) {
        if (const double size = length(); size > tol.equalVector) {
            x /= size;
            y /= size;
            z /= size;
        }
        return *this;
    }

    [[nodiscard]] bool isEqualTo(const KdGeVector3d& other,
                                 const KdGeTol& tol = KdGeContext::gTol) const {
        return (*this - other).length() <= tol.equalVector;
    }

    friend KdGeVector3d operator-(const KdGeVector3d& v) { return {-v.x, -v.y, -v.z}; }
    friend KdGeVector3d operator-(const KdGeVector3d& a, const KdGeVector3d& b) {
        return {a.x - b.x, a.y - b.y, a.z - b.z};
    }
    friend KdGeVector3d operator+(const KdGeVector3d& a, const KdGeVector3d& b) {
        return {a.x + b.x, a.y + b.y, a.z + b.z};
    }
    friend KdGeVector3d operator*(const KdGeVector3d& v, double factor) {
        return {v.x * factor, v.y * factor, v.z * factor};
    }
    friend bool operator==(const KdGeVector3d&, const KdGeVector3d&) = default;
};

static_assert(sizeof(KdGeVector3d) == 24);
