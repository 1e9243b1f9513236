#pragma once

#include "Appearance.h"
#include "PlanView.h"
#include "paintAppearance.h"

#include <cstdint>
#include <optional>
#include <string>

namespace orvex {

// What surrounds a picture.
struct SvgPage {
    double pixelsPerMillimetre = 0.0;                // 0: its size is given in pixels
    std::optional<std::uint32_t> ground = 0xFFFFFFU; // none is transparent
};

// A picture as SVG text: small files that a person can read. Lengths are pixels with two decimals;
// neighbouring lines that look alike share a path.
class SvgPicture {
public:
    // The view has to outlive the picture.
    SvgPicture(const PlanView& view, const PaintSettings& settings)
        : m_view(view), m_settings(settings) {}

    void add(const Appearance& appearance);
    // Goes over all else; without fills.
    void addMark(const Appearance& appearance, const PaintSettings& settings);
    // The whole file: fills below lines below labels.
    [[nodiscard]] std::string text(const SvgPage& page = {});

private:
    void addFill(const Fill& fill);
    void addStroke(const Stroke& stroke, const Appearance& appearance);
    void addLabel(const Label& label);
    [[nodiscard]] std::string strokeAttributes(const Stroke& stroke,
                                               const Appearance& appearance) const;
    void endPath();
    [[nodiscard]] static std::string lineGroup(const std::string& lines, double width);

    const PlanView& m_view;
    PaintSettings m_settings;
    std::string m_fills;
    std::string m_lines;
    std::string m_labels;
    std::string m_marks;
    std::string m_pathAttributes; // attributes of the path that is being written
    std::string m_path;
    std::string m_pathEnd; // where it has come to
};

} // namespace orvex
