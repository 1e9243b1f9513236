#pragma once

#include "PlanView.h"
#include "viewChange.h"

#include <QColor>
#include <QPixmap>

#include <cstdint>
#include <vector>

class QPainter;
struct KdDbStub;

namespace orvex {

class Scene;

enum class MarkKind : std::uint8_t { planned, left };

// A place of the plan that is pointed out, as a sign of some pixels at every zoom.
struct CanvasMark {
    PlanPoint at;
    MarkKind kind = MarkKind::planned;
};

// What lies over the picture of the plan until somebody takes it away: selected entities and marks.
// Kept as a picture of its own, so that a moving cursor doesn't paint thousands of them anew.
class CanvasOverlay {
public:
    void setSelected(std::vector<KdDbStub*> entities);
    void setMarks(std::vector<CanvasMark> marks);
    void clear();
    // The look of a selected entity may have changed.
    void invalidate() { m_isStale = true; }

    [[nodiscard]] const std::vector<KdDbStub*>& selected() const { return m_selected; }
    [[nodiscard]] const std::vector<CanvasMark>& marks() const { return m_marks; }

    // `ratio` is device pixels to one of the view's; the painter's background is the ground.
    void paint(QPainter& painter, Scene& scene, const PlanView& view, double ratio);

private:
    void render(Scene& scene, const PlanView& view, double ratio, const QColor& ground);

    std::vector<KdDbStub*> m_selected;
    std::vector<CanvasMark> m_marks;
    QPixmap m_picture;
    ViewState m_shown;
    QColor m_ground; // of the picture's colours
    bool m_isStale = true;
};

} // namespace orvex
