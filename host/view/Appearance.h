#pragma once

#include "KdGePoint3d.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvex {

// A point of the plan, drawing units.
struct PlanPoint {
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const PlanPoint&, const PlanPoint&) = default;
};

// A box in the plan; empty when the low corner lies above the high one.
struct PlanBox {
    PlanPoint low{1.0, 1.0};
    PlanPoint high{-1.0, -1.0};

    [[nodiscard]] bool isEmpty() const { return low.x > high.x || low.y > high.y; }
    void include(const PlanPoint& point);
    void include(const PlanBox& box);
};

// What a line is for. Only drawn lines are picked.
enum class StrokeRole : std::uint8_t { line, cap, joint };

// Of lines on paper, in hundredths of a millimetre, where nothing else is said.
constexpr std::int16_t kUsualWeight = 25;

// Points of a stroke that stand for an arc, from its one end to its other.
struct ArcSpan {
    std::uint32_t first = 0;
    std::uint32_t last = 0;

    friend bool operator==(const ArcSpan&, const ArcSpan&) = default;
};

// A chain of straight pieces in one colour; arcs come as chains. Points that aren't within an arc
// are the entity's own, to the bit.
struct Stroke {
    std::vector<PlanPoint> points; // one point is a dot
    std::uint32_t rgb = 0xFFFFFF;
    StrokeRole role = StrokeRole::line;
    std::int16_t weight = kUsualWeight; // hundredths of a millimetre on paper
    std::uint32_t dashes = 0;    // index into Appearance::dashPatterns plus 1; 0 is continuous
    std::vector<ArcSpan> arcs{}; // in ascending order
};

struct Fill {
    std::vector<PlanPoint> outline;
    std::uint32_t rgb = 0xFFFFFF;
};

// Text is drawn by the painter's fonts; its box is what it covers.
struct Label {
    PlanPoint anchor;
    double height = 0.0; // drawing units
    double angle = 0.0;  // radians, counter-clockwise from the plan's x
    int horizontal = 0;  // 0 left, 1 middle, 2 right
    int vertical = 0;    // 0 base line, 1 bottom, 2 middle, 3 top
    std::wstring text;
    std::uint32_t rgb = 0xFFFFFF;
};

// What an entity looks like, in the plan: the one value that painting, pictures and picking read.
struct Appearance {
    std::vector<Fill> fills;     // drawn first
    std::vector<Stroke> strokes; // a multiline's element lines, then caps and joints
    std::vector<Label> labels;
    std::vector<std::vector<double>> dashPatterns; // drawing units, line type scales applied
    std::vector<std::vector<PlanPoint>> chains;    // of multilines, not drawn; closed ones return
    bool seen = true; // false on frozen or switched-off layers, and for invisible entities

    [[nodiscard]] PlanBox box() const;
};

} // namespace orvex
