#pragma once

#include "DrawSink.h"
#include "Placement.h"

#include <span>
#include <vector>

namespace orvex {

// Takes points of one space and hands them to a sink that takes them in the plan.
class PlacedSink {
public:
    // For the world's own points.
    explicit PlacedSink(DrawSink& sink) : m_sink(sink) {}
    // For points of a block that is placed in the world.
    PlacedSink(DrawSink& sink, const Placement& placement)
        : m_sink(sink), m_placement(placement), m_placed(true) {}

    void stroke(std::span<const KdGePoint3d> points, StrokeRole role, const Pen& pen,
                std::span<const ArcSpan> arcs = {});
    void chain(std::span<const KdGePoint3d> points);
    void fill(std::span<const KdGePoint3d> outline, std::uint32_t rgb);
    void label(const Label& label) { m_sink.label(label); } // in the plan already

    [[nodiscard]] PlanPoint inPlan(const KdGePoint3d& point) const;
    [[nodiscard]] PlanPoint directionInPlan(const KdGeVector3d& direction) const;
    [[nodiscard]] const Placement& placement() const { return m_placement; }
    [[nodiscard]] bool isPlaced() const { return m_placed; }
    [[nodiscard]] bool wantsPens() const { return m_sink.wantsPens(); }
    [[nodiscard]] DrawSink& sink() const { return m_sink; }

private:
    void project(std::span<const KdGePoint3d> points);

    DrawSink& m_sink;
    Placement m_placement;
    bool m_placed = false;
    std::vector<PlanPoint> m_plan; // kept, so that not every line needs memory of its own
};

} // namespace orvex
