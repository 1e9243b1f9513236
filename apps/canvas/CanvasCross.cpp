// The cross without a mouse: keys that move it and click.

#include "CanvasState.h"
#include "findSnap.h"
#include "snapWords.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr int kStep = 1; // pixels
constexpr int kLongStep = 10;

// Points that are there without a base; y downwards as on the screen.
SnapModes crossModes() {
    SnapModes modes = SnapModes::all();
    modes.set(SnapMode::perpendicular, false);
    modes.set(SnapMode::nearest, false);
    return modes;
}

QPoint arrowOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

void Canvas::State::dropCursor() {
    cursor.reset();
    crossTarget.reset();
    dropHighlight();
    canvas.update();
    emit canvas.cursorLeft();
}

void Canvas::State::startCross() {
    if (session == nullptr || !isShown) {
        return;
    }
    isCrossOn = true;
    moveCross(cursor.value_or(canvas.rect().center()));
}

bool Canvas::State::takeCrossKey(const QKeyEvent& key) {
    if (session == nullptr || !isShown) {
        return false;
    }
    const QPoint arrow = arrowOf(key.key());
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!arrow.isNull() && (key.modifiers() & Qt::ControlModifier) != 0) {
        sendCross(arrow);
    } else if (!arrow.isNull()) {
        const bool isLong = (key.modifiers() & Qt::ShiftModifier) != 0;
        moveCross(cursor.value_or(canvas.rect().center()) + arrow * (isLong ? kLongStep : kStep));
    } else if (isEnter && cursor) {
        clickAtCross(key.modifiers() & Qt::ShiftModifier);
    }
    return !arrow.isNull() || isEnter;
}

// As the mouse would; beyond the edge the plan moves instead.
void Canvas::State::moveCross(const QPoint& pixel) {
    const QPoint within(std::clamp(pixel.x(), 0, std::max(canvas.width() - 1, 0)),
                        std::clamp(pixel.y(), 0, std::max(canvas.height() - 1, 0)));
    if (const QPoint excess = pixel - within; !excess.isNull()) {
        moveTo(panned(view(), {-static_cast<double>(excess.x()), -static_cast<double>(excess.y())}),
               true);
    }
    isCrossActing = true;
    QMouseEvent move(QEvent::MouseMove, within, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    canvas.mouseMoveEvent(&move);
    isCrossActing = false;
}

void Canvas::State::sendCross(QPoint direction) {
    const PlanPoint from = crossTarget ? crossTarget->at : planAtCursor();
    PlanBox seen;
    seen.include(planAt({0, 0}));
    seen.include(planAt({canvas.width() - 1, canvas.height() - 1}));
    const auto target =
        nextSnap(session->scene(), from,
                 {static_cast<double>(direction.x()), -static_cast<double>(direction.y())}, seen,
                 crossModes(), view().unitsPerPixel());
    if (!target) {
        return;
    }
    moveCross(pixelOf(target->at));
    crossTarget = {.at = target->at,
                   .isExact = true,
                   .marker = target->mode,
                   .name = QCoreApplication::translate("orvex", snapName(target->mode))};
}

void Canvas::State::sendCrossToGrip(bool forward) {
    if (session == nullptr || !isShown || aim.kind != AimKind::none) {
        return;
    }
    std::vector<std::size_t> inSight;
    for (const std::size_t grip : grips.shown(view())) {
        if (canvas.rect().contains(pixelOf(grips.places()[grip]))) {
            inSight.push_back(grip);
        }
    }
    if (inSight.empty()) {
        return;
    }
    const auto here = cursor ? gripAt(*cursor) : std::nullopt;
    const auto at = here ? std::find(inSight.begin(), inSight.end(), *here) : inSight.end();
    std::size_t next = forward ? 0 : inSight.size() - 1;
    if (at != inSight.end()) {
        next = static_cast<std::size_t>(at - inSight.begin()) + (forward ? 1 : inSight.size() - 1);
    }
    moveCross(pixelOf(grips.places()[inSight[next % inSight.size()]]));
}

QPoint Canvas::State::pixelOf(PlanPoint place) const {
    const PlanPoint pixel = session->view().toPixels(place);
    return {static_cast<int>(std::floor(pixel.x)), static_cast<int>(std::floor(pixel.y))};
}

void Canvas::State::clickAtCross(Qt::KeyboardModifiers modifiers) {
    const QPoint pixel = *cursor;
    isCrossActing = true;
    QMouseEvent down(QEvent::MouseButtonPress, pixel, Qt::LeftButton, Qt::LeftButton, modifiers);
    canvas.mousePressEvent(&down);
    QMouseEvent up(QEvent::MouseButtonRelease, pixel, Qt::LeftButton, Qt::NoButton, modifiers);
    canvas.mouseReleaseEvent(&up);
    isCrossActing = false;
    crossTarget.reset();
}

// Of the grip under the cross, else of what is selected.
void Canvas::State::wantMenu() {
    const QPoint pixel = cursor.value_or(canvas.rect().center());
    const QPoint at = canvas.mapToGlobal(pixel);
    if (const auto grip = gripAt(pixel)) {
        emit canvas.gripMenuWanted(static_cast<int>(*grip), at);
    } else {
        emit canvas.menuWanted(at);
    }
}

} // namespace orvex
