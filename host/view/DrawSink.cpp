#include "DrawSink.h"

#include "labelBox.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

// The limit of coordinates in drawings. Products of two of them stay finite.
constexpr double kFarthest = 1e100;

bool isDrawable(double value) {
    return std::abs(value) <= kFarthest;
} // false for NaN

bool isDrawable(std::span<const PlanPoint> points) {
    return std::all_of(points.begin(), points.end(), [](const PlanPoint& point) {
        return isDrawable(point.x) && isDrawable(point.y);
    });
}

// A pattern of nothing but dots would never get on along the line.
bool isUsablePattern(const std::vector<double>& dashes, double scale) {
    double length = 0.0;
    for (const double dash : dashes) {
        length += std::abs(dash) * scale;
    }
    return dashes.size() > 1 && length > 0.0 && std::isfinite(length);
}

} // namespace

void DrawSink::stroke(std::span<const PlanPoint> points, StrokeRole role, const Pen& pen,
                      std::span<const ArcSpan> arcs) {
    m_pointCount += points.size();
    if (!points.empty() && isDrawable(points)) {
        takeStroke(points, role, pen, arcs);
    }
}

void DrawSink::chain(std::span<const PlanPoint> points) {
    if (!points.empty() && isDrawable(points)) {
        takeChain(points);
    }
}

void DrawSink::fill(std::span<const PlanPoint> outline, std::uint32_t rgb) {
    m_pointCount += outline.size();
    if (outline.size() > 2 && isDrawable(outline)) {
        takeFill(outline, rgb);
    }
}

void DrawSink::label(const Label& label) {
    const PlanPoint anchor = label.anchor;
    const bool drawable = isDrawable({&anchor, 1}) && std::isfinite(label.angle) &&
                          label.height > 0.0 && isDrawable(label.height);
    if (drawable && !label.text.empty()) {
        takeLabel(label);
    }
}

void AppearanceSink::takeStroke(std::span<const PlanPoint> points, StrokeRole role, const Pen& pen,
                                std::span<const ArcSpan> arcs) {
    m_appearance.strokes.push_back({.points = {points.begin(), points.end()},
                                    .rgb = pen.rgb,
                                    .role = role,
                                    .weight = pen.weight,
                                    .dashes = dashesOf(pen),
                                    .arcs = {arcs.begin(), arcs.end()}});
}

void AppearanceSink::takeChain(std::span<const PlanPoint> points) {
    m_appearance.chains.emplace_back(points.begin(), points.end());
}

void AppearanceSink::takeFill(std::span<const PlanPoint> outline, std::uint32_t rgb) {
    m_appearance.fills.push_back({.outline = {outline.begin(), outline.end()}, .rgb = rgb});
}

void AppearanceSink::takeLabel(const Label& label) {
    m_appearance.labels.push_back(label);
}

std::uint32_t AppearanceSink::dashesOf(const Pen& pen) {
    if (pen.dashes == nullptr || !isUsablePattern(*pen.dashes, pen.dashScale)) {
        return 0;
    }
    std::vector<double> scaled = *pen.dashes;
    for (double& dash : scaled) {
        dash *= pen.dashScale;
    }
    auto& known = m_appearance.dashPatterns;
    auto found = std::find(known.begin(), known.end(), scaled);
    if (found == known.end()) {
        found = known.insert(known.end(), std::move(scaled));
    }
    return static_cast<std::uint32_t>(found - known.begin() + 1);
}

void BoxSink::takeStroke(std::span<const PlanPoint> points, StrokeRole, const Pen&,
                         std::span<const ArcSpan>) {
    for (const PlanPoint& point : points) {
        m_box.include(point);
    }
}

void BoxSink::takeFill(std::span<const PlanPoint> outline, std::uint32_t) {
    m_hasFill = true;
    for (const PlanPoint& point : outline) {
        m_box.include(point);
    }
}

void BoxSink::takeLabel(const Label& label) {
    m_box.include(labelBox(label));
}

} // namespace orvex
