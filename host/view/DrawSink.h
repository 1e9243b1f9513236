#pragma once

#include "Appearance.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orvex {

// What a line is drawn with.
struct Pen {
    std::uint32_t rgb = 0xFFFFFF;
    const std::vector<double>* dashes = nullptr; // of a line type at scale 1; null is continuous
    double dashScale = 1.0;
    std::int16_t weight = kUsualWeight;

    friend bool operator==(const Pen&, const Pen&) = default;
};

// Takes what entities draw, in the plan. What has a coordinate that isn't a number, or lies out
// of the range of drawings, is passed over: it can't be seen, and it must not spoil the rest.
class DrawSink {
public:
    DrawSink() = default;
    DrawSink(const DrawSink&) = delete;
    DrawSink& operator=(const DrawSink&) = delete;
    virtual ~DrawSink() = default;

    void stroke(std::span<const PlanPoint> points, StrokeRole role, const Pen& pen,
                std::span<const ArcSpan> arcs = {});
    // Of a multiline; nothing is drawn of it.
    void chain(std::span<const PlanPoint> points);
    void fill(std::span<const PlanPoint> outline, std::uint32_t rgb);
    void label(const Label& label);

    // All that it was given so far.
    [[nodiscard]] std::size_t pointCount() const { return m_pointCount; }
    // False when colours and line types needn't be looked up.
    [[nodiscard]] virtual bool wantsPens() const = 0;

private:
    virtual void takeStroke(std::span<const PlanPoint> points, StrokeRole role, const Pen& pen,
                            std::span<const ArcSpan> arcs) = 0;
    virtual void takeChain(std::span<const PlanPoint> /*points*/) {}
    virtual void takeFill(std::span<const PlanPoint> outline, std::uint32_t rgb) = 0;
    virtual void takeLabel(const Label& label) = 0;

    std::size_t m_pointCount = 0;
};

// Keeps all of it.
class AppearanceSink final : public DrawSink {
public:
    explicit AppearanceSink(Appearance& appearance) : m_appearance(appearance) {}

    [[nodiscard]] bool wantsPens() const override { return true; }

private:
    void takeStroke(std::span<const PlanPoint> points, StrokeRole role, const Pen& pen,
                    std::span<const ArcSpan> arcs) override;
    void takeChain(std::span<const PlanPoint> points) override;
    void takeFill(std::span<const PlanPoint> outline, std::uint32_t rgb) override;
    void takeLabel(const Label& label) override;
    std::uint32_t dashesOf(const Pen& pen);

    Appearance& m_appearance;
};

// Keeps only what it covers, so that a whole drawing can be measured in no more memory than one
// box.
class BoxSink final : public DrawSink {
public:
    [[nodiscard]] const PlanBox& box() const { return m_box; }
    [[nodiscard]] bool hasFill() const { return m_hasFill; }
    [[nodiscard]] bool wantsPens() const override { return false; }

private:
    void takeStroke(std::span<const PlanPoint> points, StrokeRole role, const Pen& pen,
                    std::span<const ArcSpan> arcs) override;
    void takeFill(std::span<const PlanPoint> outline, std::uint32_t rgb) override;
    void takeLabel(const Label& label) override;

    PlanBox m_box;
    bool m_hasFill = false;
};

} // namespace orvex
