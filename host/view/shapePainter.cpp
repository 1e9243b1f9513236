#include "shapePainter.h"

#include "arcs.h"

#include <array>
#include <cmath>

namespace orvex {

namespace {

constexpr double kLineSpacing = 5.0 / 3.0; // base line to base line, of a capital's height

// How many lines the text's first line stands above its anchor.
double linesAboveAnchor(const TextShape& text) {
    const auto following = static_cast<double>(text.lines.size()) - 1.0;
    switch (text.vertical) {
    case 3:
        return 0.0;
    case 2:
        return following / 2.0;
    default:
        return following;
    }
}

} // namespace

void paintShape(const LineShape& line, const Pen& pen, PlacedSink& sink) {
    const std::array<KdGePoint3d, 2> ends{line.start, line.end};
    sink.stroke(ends, StrokeRole::line, pen);
}

void paintShape(const PolylineShape& polyline, const Pen& pen, PlacedSink& sink) {
    std::vector<ArcSpan> arcs;
    const std::vector<KdGePoint3d> chain = polylineChain(polyline, &arcs);
    sink.stroke(chain, StrokeRole::line, pen, arcs);
}

void paintShape(const ConicShape& conic, const Pen& pen, PlacedSink& sink) {
    const std::vector<KdGePoint3d> chain = conicChain(conic);
    if (!chain.empty()) {
        const ArcSpan all{0, static_cast<std::uint32_t>(chain.size() - 1)};
        sink.stroke(chain, StrokeRole::line, pen, {&all, 1});
    }
}

void paintShape(const TextShape& text, const Pen& pen, PlacedSink& sink) {
    const PlanPoint along = sink.directionInPlan(text.direction);
    const PlanPoint up = sink.directionInPlan(text.up * text.height);
    Label label;
    label.height = std::hypot(up.x, up.y);
    label.angle = std::atan2(along.y, along.x);
    label.horizontal = text.horizontal;
    label.vertical = text.vertical;
    label.rgb = pen.rgb;
    double above = linesAboveAnchor(text);
    for (const std::wstring& line : text.lines) {
        const double rise = above * kLineSpacing * text.height;
        label.anchor = sink.inPlan(text.position + text.up * rise);
        label.text = line;
        sink.label(label);
        above -= 1.0;
    }
}

void paintShape(const SolidShape& solid, const Pen& pen, PlacedSink& sink) {
    if (solid.corners.empty()) {
        return;
    }
    sink.fill(solid.corners, pen.rgb);
    std::vector<KdGePoint3d> outline = solid.corners;
    outline.push_back(outline.front());
    sink.stroke(outline, StrokeRole::line, pen);
}

void paintShape(const OutlinesShape& outlines, const Pen& pen, PlacedSink& sink) {
    for (const PolylineShape& path : outlines.paths) {
        paintShape(path, pen, sink);
    }
    for (const ConicShape& arc : outlines.arcs) {
        paintShape(arc, pen, sink);
    }
}

void paintShape(const PointShape& point, const Pen& pen, PlacedSink& sink) {
    sink.stroke({&point.position, 1}, StrokeRole::line, pen);
}

} // namespace orvex
