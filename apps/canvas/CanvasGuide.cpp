// Where a click goes: the aim's guide and its marks.

#include "CanvasState.h"
#include "canvasMarks.h"
#include "guideMarks.h"

#include <QPainter>

namespace orvex {

// Asked once for the same place, so that a click gives what was shown. The guide looks at the
// scene; until that is up to date, the place itself is the answer.
GuidedPoint Canvas::State::guidedAt(PlanPoint place, Qt::KeyboardModifiers held) {
    if (aim.kind != AimKind::point || !aim.guide || !session->scene().prepareSome({})) {
        return {.at = place};
    }
    if (!guided || guided->cursor != place || guided->modifiers != held) {
        guided = {place, held, aim.guide(place, held)};
    }
    return guided->point;
}

// The scene is up to date.
void Canvas::State::updateGuide() {
    isGuideStale = false;
    if (!cursor || panFrom) {
        return;
    }
    const PlanPoint at = guidedAtCursor().at;
    canvas.update();
    emit canvas.cursorMoved(at.x, at.y);
}

void Canvas::State::paintPointAim(QPainter& painter) {
    const GuidedPoint point = guidedAtCursor();
    if (aim.preview) {
        paintPreview(painter, view(), aim.preview(point.at));
    } else if (aim.base) {
        paintRubberLine(painter, view(), *aim.base, point.at);
    }
    paintCrosshair(painter, *cursor, canvas.size(), -1);
    paintGuide(painter, view(), point);
}

} // namespace orvex
