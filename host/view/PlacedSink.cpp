#include "PlacedSink.h"

namespace orvex {

void PlacedSink::stroke(std::span<const KdGePoint3d> points, StrokeRole role, const Pen& pen,
                        std::span<const ArcSpan> arcs) {
    project(points);
    m_sink.stroke(m_plan, role, pen, arcs);
}

void PlacedSink::chain(std::span<const KdGePoint3d> points) {
    project(points);
    m_sink.chain(m_plan);
}

void PlacedSink::fill(std::span<const KdGePoint3d> outline, std::uint32_t rgb) {
    project(outline);
    m_sink.fill(m_plan, rgb);
}

PlanPoint PlacedSink::inPlan(const KdGePoint3d& point) const {
    const KdGePoint3d world = m_placed ? m_placement.place(point) : point;
    return {world.x, world.y};
}

PlanPoint PlacedSink::directionInPlan(const KdGeVector3d& direction) const {
    const KdGeVector3d world = m_placed ? m_placement.turn(direction) : direction;
    return {world.x, world.y};
}

void PlacedSink::project(std::span<const KdGePoint3d> points) {
    m_plan.clear();
    m_plan.reserve(points.size());
    for (const KdGePoint3d& point : points) {
        m_plan.push_back(inPlan(point));
    }
}

} // namespace orvex
