#pragma once

#include <cmath>

namespace orvex {

// A place or a displacement in the plan, drawing units.
struct PlanVector {
    double x = 0.0;
    double y = 0.0;

    // A square root is the same on every machine, while the last bit of hypot depends on its
    // library; that is left to what would overflow or vanish.
    [[nodiscard]] double length() const {
        const double squares = x * x + y * y;
        return std::isnormal(squares) ? std::sqrt(squares) : std::hypot(x, y);
    }
    // Turned by a quarter to the left.
    [[nodiscard]] PlanVector left() const { return {-y, x}; }

    friend PlanVector operator+(PlanVector a, PlanVector b) { return {a.x + b.x, a.y + b.y}; }
    friend PlanVector operator-(PlanVector a, PlanVector b) { return {a.x - b.x, a.y - b.y}; }
    friend PlanVector operator*(PlanVector a, double f) { return {a.x * f, a.y * f}; }
    friend bool operator==(const PlanVector&, const PlanVector&) = default;
};

inline double dot(PlanVector a, PlanVector b) {
    return a.x * b.x + a.y * b.y;
}
inline double cross(PlanVector a, PlanVector b) {
    return a.x * b.y - a.y * b.x;
}

// A directed line in the plan. Only differences of nearby places enter a computation, so that
// plans far from the origin lose nothing.
struct PlanLine {
    PlanVector start;
    PlanVector direction; // unit
    double length = 0.0;

    [[nodiscard]] PlanVector at(double distance) const { return start + direction * distance; }
    [[nodiscard]] double along(PlanVector point) const { return dot(point - start, direction); }
    // To the left of the line: positive.
    [[nodiscard]] double aside(PlanVector point) const { return cross(direction, point - start); }
    // How far along this line the other, produced, is crossed. Not for parallels.
    [[nodiscard]] double crossing(const PlanLine& other) const {
        return cross(other.start - start, other.direction) / cross(direction, other.direction);
    }
};

} // namespace orvex
