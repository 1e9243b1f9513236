#pragma once

#include "Placement.h"
#include "looksInk.h"

#include <span>
#include <vector>

namespace orvex {

// Draws points of one space into an ink that takes them in the plan.
class Pencil {
public:
    // For the world's own points.
    explicit Pencil(Ink& ink) : m_ink(ink) {}
    // For points of a block that is placed in the world.
    Pencil(Ink& ink, const Placement& placement)
        : m_ink(ink), m_placement(placement), m_placed(true) {}

    void stroke(std::span<const KdGePoint3d> chain, StrokeRole role, const Pen& pen);
    void fill(std::span<const KdGePoint3d> outline, std::uint32_t rgb);
    void label(const Label& label) { m_ink.label(label); } // in the plan already

    [[nodiscard]] PlanPoint inPlan(const KdGePoint3d& point) const;
    [[nodiscard]] PlanPoint directionInPlan(const KdGeVector3d& direction) const;
    [[nodiscard]] const Placement& placement() const { return m_placement; }
    [[nodiscard]] bool isPlaced() const { return m_placed; }
    [[nodiscard]] bool wantsPens() const { return m_ink.wantsPens(); }
    [[nodiscard]] Ink& ink() const { return m_ink; }

private:
    void project(std::span<const KdGePoint3d> points);

    Ink& m_ink;
    Placement m_placement;
    bool m_placed = false;
    std::vector<PlanPoint> m_plan; // kept, so that not every line needs memory of its own
};

} // namespace orvex
