// What the left button does: clicks, drags, windows of a selection.

#include "CanvasState.h"
#include "canvasMarks.h"

#include <algorithm>
#include <utility>

namespace orvex {

void Canvas::State::startPan(const QPoint& pixel, Qt::MouseButton button) {
    panFrom = pixel;
    panButton = button;
    history.leave(stateOf(view()));
    dropHighlight();
    updateCursorShape();
}

void Canvas::State::pressLeft(const QPoint& pixel, Qt::KeyboardModifiers modifiers) {
    const bool takesAway = (modifiers & Qt::ShiftModifier) != 0;
    const bool awaitsCorner =
        windowStep == WindowStep::first || windowStep == WindowStep::second || selectionFrom;
    const bool selects = takesSelection() && !awaitsCorner;
    if ((modifiers & Qt::ControlModifier) != 0 || selects) {
        // A pan with Ctrl, else a window, if it goes on as a drag.
        const bool isPlain = modifiers == Qt::NoModifier;
        press = {pixel, modifiers, isPlain ? gripAt(pixel) : std::nullopt,
                 isPlain && isSelectedAt(pixel)};
    } else if (windowStep == WindowStep::first) {
        setWindowStep(WindowStep::second);
        windowCorner = pixel;
    } else if (windowStep == WindowStep::second) {
        endWindow(pixel);
    } else if (selectionFrom) {
        endSelectionWindow(takesAway);
    } else {
        click({planAt(pixel), modifiers});
    }
}

// Whoever takes a click may do anything.
void Canvas::State::click(const Click& click) {
    if ((aim.kind != AimKind::point || aim.guide) && !session->scene().prepareSome({})) {
        waitingClick = click; // a pick would take as long as the rest of the index
        startWork();
    } else if (!takesSelection()) {
        const GuidedPoint point = guidedAt(click.at, click.modifiers);
        emit canvas.clicked(point.at.x, point.at.y, point.isExact);
    } else if (entityAt(click.at) != nullptr) {
        emit canvas.picked(click.at.x, click.at.y, (click.modifiers & Qt::ShiftModifier) != 0);
    } else {
        startSelectionWindow(click.at, false);
    }
}

void Canvas::State::startDrag(const Press& from) {
    if ((from.modifiers & Qt::ControlModifier) != 0) {
        startPan(from.at, Qt::LeftButton);
    } else if (from.grip) {
        takeGrip(*from.grip, true);
    } else if (from.isOnSelected) {
        isGripDragged = true;
        waitingDrop.reset();
        dropHighlight();
        const PlanPoint at = planAt(from.at);
        emit canvas.selectionDragged(at.x, at.y);
    } else {
        startSelectionWindow(planAt(from.at), true);
    }
}

// Only while nothing asks: then a click is a pick.
std::optional<std::size_t> Canvas::State::gripAt(const QPoint& pixel) {
    if (aim.kind != AimKind::none || !isShown || windowStep != WindowStep::off || selectionFrom) {
        return std::nullopt;
    }
    return grips.at(view(), QPointF(pixel) + QPointF(0.5, 0.5));
}

bool Canvas::State::isSelectedAt(const QPoint& pixel) const {
    if (aim.kind != AimKind::none || overlay.selected().empty() ||
        !session->scene().prepareSome({})) {
        return false;
    }
    const PlanPoint at = planAt(pixel);
    const KdDbStub* const found = entityAt(at);
    const std::vector<KdDbStub*>& selected = overlay.selected();
    return found != nullptr && std::find(selected.begin(), selected.end(), found) != selected.end();
}

void Canvas::State::takeGrip(std::size_t grip, bool isDragged) {
    isGripDragged = isDragged;
    waitingDrop.reset();
    dropHighlight();
    emit canvas.gripTaken(static_cast<int>(grip));
}

void Canvas::State::dropGrip(const Click& drop) {
    isGripDragged = false;
    if (aim.kind == AimKind::point) {
        click(drop);
    } else {
        waitingDrop = drop;
    }
}

void Canvas::State::startSelectionWindow(PlanPoint corner, bool isDragged) {
    selectionFrom = corner;
    isSelectionDragged = isDragged;
    windowCount.reset();
    isWindowCountStale = true;
    dropHighlight();
    startWork();
    canvas.update();
}

void Canvas::State::endSelectionWindow(bool takesAway) {
    const PlanPoint first = *selectionFrom;
    const PlanPoint second = planAtCursor();
    stopWindow();
    emit canvas.windowDrawn(first, second, takesAway);
}

// The scene is up to date.
void Canvas::State::updateWindowCount() {
    isWindowCountStale = false;
    if (!selectionFrom || !cursor) {
        return;
    }
    const PlanPoint second = planAtCursor();
    PlanBox box;
    box.include(*selectionFrom);
    box.include(second);
    Scene& scene = session->scene();
    const auto found = isCrossingWindow(selectionFrom->x, second.x) ? scene.entitiesTouching(box)
                                                                    : scene.entitiesWithin(box);
    windowCount = static_cast<std::size_t>(
        std::count_if(found.begin(), found.end(),
                      [this](const KdDbStub* entity) { return !aim.takes || aim.takes(*entity); }));
    canvas.update();
}

QString Canvas::State::windowWords() const {
    const QString count = windowCount ? QString::number(*windowCount) : QString(QChar(0x2026));
    return (isCrossingWindow(selectionFrom->x, planAtCursor().x) ? Canvas::tr("%1 touched")
                                                                 : Canvas::tr("%1 within"))
        .arg(count);
}

} // namespace orvex
