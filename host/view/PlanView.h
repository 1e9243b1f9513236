#pragma once

#include "Appearance.h"
#include "RvexView.h"

namespace orvex {

// A view of the plan: a rectangle of drawing units on a rectangle of pixels, y upwards in the plan
// and downwards on the screen. One scale for both directions.
class PlanView final : public RvexView {
public:
    PlanView(int widthPixels, int heightPixels);

    void resize(int widthPixels, int heightPixels);
    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }

    [[nodiscard]] PlanPoint center() const { return m_center; }
    [[nodiscard]] double viewHeight() const { return m_viewHeight; } // drawing units
    // A height that isn't finite and above 0 changes nothing.
    void setView(PlanPoint center, double viewHeight);
    // A tenth more than the box, which fits as a whole; an empty box shows 10 around the origin.
    void zoomTo(const PlanBox& extents);

    [[nodiscard]] double unitsPerPixel() const { return m_viewHeight / m_height; }
    [[nodiscard]] PlanPoint toPixels(PlanPoint plan) const;
    [[nodiscard]] PlanPoint toPlan(PlanPoint pixels) const;

    void pixelsToDisplayUnits(double& length, void*, void*, int) const override;
    void worldToDisplay(const double* world, double* display) const override;

private:
    int m_width;
    int m_height;
    PlanPoint m_center;
    double m_viewHeight = 10.0;
};

} // namespace orvex
