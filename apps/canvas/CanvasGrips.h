#pragma once

#include "PlanView.h"
#include "viewChange.h"

#include <QPointF>

#include <optional>
#include <vector>

class QPainter;

namespace orvex {

// Places of the plan that can be taken hold of, as squares of some pixels at every zoom. Where they
// would come too close to be told apart, none is shown.
class CanvasGrips {
public:
    void setPlaces(std::vector<PlanPoint> places);
    [[nodiscard]] const std::vector<PlanPoint>& places() const { return m_places; }

    // Those that are, as indexes among the places.
    [[nodiscard]] const std::vector<std::size_t>& shown(const PlanView& view) {
        sift(view);
        return m_shown;
    }
    // The nearest grip within reach of a pixel, as its index among the places.
    [[nodiscard]] std::optional<std::size_t> at(const PlanView& view, const QPointF& pixel);
    // That under the cursor is filled.
    void paint(QPainter& painter, const PlanView& view, const std::optional<QPointF>& cursor);

private:
    void sift(const PlanView& view);

    std::vector<PlanPoint> m_places;
    std::vector<std::size_t> m_shown; // indexes
    ViewState m_siftedFor;
    bool m_isSifted = false;
};

} // namespace orvex
