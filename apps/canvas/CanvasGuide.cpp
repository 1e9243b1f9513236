// Where a click goes: the aim's guide and its marks.

#include "CanvasState.h"
#include "canvasMarks.h"
#include "guideMarks.h"

#include <QPainter>

namespace orvex {

// Asked once for the same place, so that a click gives what was shown. The guide looks at the
// scene; until that is up to date, the place itself is the answer.
GuidedPoint Canvas::State::guidedAt(PlanPoint place, Qt::KeyboardModifiers held) {
    if (crossTarget && cursor && place == planAtCursor()) {
        return *crossTarget;
    }
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

// A point that is being typed goes before the mouse's. Without either, what there is up to the base
// is shown, so that points that were given are seen wherever the mouse is.
void Canvas::State::paintPointAim(QPainter& painter) {
    std::optional<PlanPoint> end = shownPoint;
    std::optional<GuidedPoint> guide;
    if (!end && cursor && !panFrom && windowStep == WindowStep::off) {
        guide = guidedAtCursor();
        end = guide->at;
    } else {
        end = end ? end : aim.base;
        if (end) {
            paintTypedPoint(painter, view(), *end);
        }
    }
    if (end && !ghost.isEmpty()) {
        ghost.paint(painter, session->scene(), view(), canvas.devicePixelRatioF(), *end);
    }
    if (end && aim.preview) {
        paintPreview(painter, view(), aim.preview(*end));
    } else if (end && aim.base) {
        paintRubberLine(painter, view(), *aim.base, *end);
    }
    if (guide) {
        paintGuide(painter, view(), *guide);
    }
}

} // namespace orvex
