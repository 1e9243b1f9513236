#pragma once

#include "Appearance.h"
#include "PlanMap.h"
#include "PlanView.h"
#include "viewChange.h"

#include <QPixmap>
#include <QPointF>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class QPainter;
struct KdDbStub;

namespace orvex {

class Scene;

// Entities that move as one with the cursor.
struct AimGroup {
    std::vector<KdDbStub*> entities; // live as long as the aim
    // Where a point at the cursor would bring them; nothing where it can't.
    std::function<std::optional<PlanMap>(PlanPoint point)> map;
};

// What a moving group would look like. What is only shifted is painted once, as a picture; what is
// turned or mirrored is drawn in lines, and from some thousand of them on in boxes.
class GroupGhost {
public:
    void setGroup(AimGroup group);
    [[nodiscard]] bool isEmpty() const { return m_group.entities.empty(); }

    // `point` is where a click would go, `ratio` device pixels to one of the view's.
    void paint(QPainter& painter, Scene& scene, const PlanView& view, double ratio,
               PlanPoint point);

private:
    void collect(Scene& scene);
    void paintShifted(QPainter& painter, const PlanView& view, double ratio, const PlanMap& map);
    void paintLines(QPainter& painter, const PlanView& view, const PlanMap& map) const;

    AimGroup m_group;
    bool m_isCollected = false;
    bool m_hasBoxes = false;
    std::vector<Stroke> m_strokes; // of the entities as they are, or of their boxes
    QPixmap m_picture;
    QPointF m_corner; // of the picture, in the view's pixels
    ViewState m_shown;
    std::uint32_t m_ground = 0;
};

} // namespace orvex
