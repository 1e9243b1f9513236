#include "CanvasState.h"

#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbEntity.h"
#include "canvasMarks.h"
#include "hintMarks.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvex {

namespace {

using std::chrono::milliseconds;

// Of work between two looks at the user's input.
constexpr milliseconds kSlice{8};
// Under a pick box that shows more than these nobody can tell one from the other.
constexpr std::size_t kMostUnderCursor = 500;
// Pixels from the plan's origin at which rounding begins to show.
constexpr double kFarthestPixel = 1e12;
constexpr double kGreatestHeight = 1e30; // drawing units

KdGeVector3d userAxis(KdDbDatabase& database, const char* name, const KdGeVector3d& usual) {
    const HeaderVariables& variables = database.core().variables();
    if (!variables.has(name)) {
        return usual;
    }
    const KdGePoint3d axis = variables.point(name);
    return {axis.x, axis.y, axis.z};
}

// The distance of the view's middle, in heights of the view.
double heightsFromOrigin(const ViewState& viewState) {
    return std::max(std::abs(viewState.center.x), std::abs(viewState.center.y)) / viewState.height;
}

} // namespace

// The middle of the pixel.
PlanPoint Canvas::State::planAt(const QPoint& pixel) const {
    return view().toPlan({pixel.x() + 0.5, pixel.y() + 0.5});
}

void Canvas::State::startWork() {
    if (session != nullptr && !work.isActive()) {
        work.start(0);
    }
}

// A slice of what there is to do: looking at the drawing, then painting.
void Canvas::State::step() {
    const auto deadline = std::chrono::steady_clock::now() + kSlice;
    if (!session->scene().prepareSome(kSlice)) {
        return;
    }
    if (!isShown && !startView()) {
        work.stop();
        return;
    }
    if (waitingClick) {
        return click(*std::exchange(waitingClick, std::nullopt));
    }
    if (wantsExtents) {
        zoomToExtents();
    }
    showView();
    const Scene::Difference difference = session->scene().takeDifference();
    if (!difference.isEmpty()) {
        picture.takeDifference(difference);
        isHighlightStale = true;
        overlay.invalidate();
        if (aim.guide) {
            canvas.guideChanged();
        }
    }
    if (isGuideStale) {
        updateGuide();
    }
    if (isHighlightStale) {
        updateHighlight();
    }
    if (isWindowCountStale) {
        updateWindowCount();
    }
    const QRegion changed = picture.paintSome(deadline);
    if (!changed.isEmpty()) {
        const double ratio = canvas.devicePixelRatioF();
        const QRect pixels = changed.boundingRect();
        canvas.update(QRectF(pixels.x() / ratio, pixels.y() / ratio, pixels.width() / ratio,
                             pixels.height() / ratio)
                          .toAlignedRect());
    }
    if (picture.isComplete()) {
        work.stop();
        emit canvas.settled();
    }
}

// False as long as the widget has no size to show anything in.
bool Canvas::State::startView() {
    if (canvas.width() <= 0 || canvas.height() <= 0) {
        return false;
    }
    isShown = true;
    const bool isFirst = !session->isViewStarted();
    fitWidget();
    if (isFirst) {
        view().zoomTo(session->planToSee());
        isAtExtents = true;
    }
    shown = {};
    return true;
}

// A window of another size shows more or less of the plan at the same scale.
void Canvas::State::fitWidget() {
    PlanView& plan = view();
    if (plan.width() == canvas.width() && plan.height() == canvas.height()) {
        return;
    }
    const double height = plan.unitsPerPixel() * canvas.height();
    plan.resize(canvas.width(), canvas.height());
    plan.setView(plan.center(), height);
    shown = {};
}

// Whoever has moved it.
void Canvas::State::showView() {
    const ViewState viewState = stateOf(view());
    if (viewState == shown) {
        return;
    }
    if (shown.height > 0.0) {
        isHighlightStale = true;
    }
    shown = viewState;
    guided.reset();
    isGuideStale = aim.guide != nullptr;
    if (cursor && !isGuideStale) { // it points elsewhere now
        const PlanPoint at = planAtCursor();
        emit canvas.cursorMoved(at.x, at.y);
    }
    picture.setView(view(), canvas.devicePixelRatioF());
    canvas.update();
    startWork();
}

void Canvas::State::moveTo(const ViewState& viewState, bool sameMovement) {
    // From where only a command can lead, every step back is welcome.
    const ViewState now = stateOf(view());
    const double farthest = std::max(kFarthestPixel / view().height(), heightsFromOrigin(now));
    const double greatest = std::max(kGreatestHeight, now.height);
    if (!(heightsFromOrigin(viewState) <= farthest) || !(viewState.height <= greatest)) {
        return;
    }
    history.leave(stateOf(view()), sameMovement);
    isAtExtents = false;
    view().setView(viewState.center, viewState.height);
    showView();
}

// Also what is being drawn, as far as its points are given.
PlanBox Canvas::State::planToSee() {
    PlanBox drawn;
    if (aim.kind == AimKind::point && aim.base) {
        drawn.include(*aim.base);
        if (aim.preview) {
            for (const Stroke& stroke : aim.preview(*aim.base).strokes) {
                for (const PlanPoint& point : stroke.points) {
                    drawn.include(point);
                }
            }
        }
    }
    const bool isLong = !drawn.isEmpty() && drawn.low != drawn.high;
    PlanBox box = isLong ? session->scene().extents() : session->planToSee();
    if (!drawn.isEmpty()) {
        box.include(drawn.low);
        box.include(drawn.high);
    }
    return box;
}

void Canvas::State::zoomToExtents() {
    wantsExtents = false;
    const ViewState before = stateOf(view());
    view().zoomTo(planToSee());
    if (stateOf(view()) != before) {
        history.leave(before, isAtExtents);
    }
    isAtExtents = true;
    showView();
}

void Canvas::State::dropHighlight() {
    if (highlight.entity != nullptr) {
        highlight = {};
        canvas.update();
    }
}

// As it is seen, which isn't how commands measure.
KdDbStub* Canvas::State::entityAt(PlanPoint place) const {
    return session->scene().pick(place, aim.pickBox * view().unitsPerPixel());
}

PickTarget Canvas::State::targetAt(PlanPoint place) const {
    const double reach = aim.pickBox * view().unitsPerPixel();
    const PlanBox square{{place.x - reach, place.y - reach}, {place.x + reach, place.y + reach}};
    if (session->scene().entitiesIn(square).size() > kMostUnderCursor) {
        return {};
    }
    if (pickFinder) {
        return pickFinder(place);
    }
    return {entityAt(place), {}};
}

// What a pick would find. The scene is up to date.
void Canvas::State::updateHighlight() {
    isHighlightStale = false;
    PickTarget target;
    if (aim.kind != AimKind::point && cursor && !panFrom && !drawsWindow() && !gripAt(*cursor)) {
        target = targetAt(planAtCursor());
    }
    targetWords = target.words;
    if (target.entity == nullptr) {
        dropHighlight();
    } else {
        highlight = {target.entity, session->scene().appearance(*target.entity)};
        canvas.update();
    }
    emit canvas.hovered(target.entity);
}

void Canvas::State::updateCursorShape() {
    if (panFrom) {
        canvas.setCursor(Qt::ClosedHandCursor);
    } else if (isShown) {
        canvas.setCursor(Qt::BlankCursor); // the crosshair is painted
    } else {
        canvas.setCursor(session != nullptr ? Qt::BusyCursor : Qt::ArrowCursor);
    }
}

void Canvas::State::endWindow(const QPoint& corner) {
    const QPoint first = windowCorner;
    stopWindow();
    const QPoint size = corner - first;
    if (size.x() != 0 || size.y() != 0) {
        moveTo(windowed(view(), {first.x() + 0.5, first.y() + 0.5},
                        {corner.x() + 0.5, corner.y() + 0.5}),
               false);
    }
}

void Canvas::State::setWindowStep(WindowStep step) {
    if (windowStep != step) {
        windowStep = step;
        emit canvas.zoomCornerAwaited(static_cast<int>(step));
    }
}

void Canvas::State::stopWindow() {
    setWindowStep(WindowStep::off);
    selectionFrom.reset();
    press.reset();
    isHighlightStale = true;
    canvas.update();
    startWork();
}

void Canvas::State::paintMarks(QPainter& painter) {
    KdDbDatabase& database = session->database();
    overlay.paint(painter, session->scene(), view(), canvas.devicePixelRatioF());
    if (aim.kind == AimKind::none) {
        grips.paint(painter, view(),
                    cursor && !panFrom ? std::optional(QPointF(*cursor) + QPointF(0.5, 0.5))
                                       : std::nullopt);
    }
    paintAxes(painter, canvas.size(), userAxis(database, "UCSXDIR", {1.0, 0.0, 0.0}),
              userAxis(database, "UCSYDIR", {0.0, 1.0, 0.0}));
    paintTool(painter, view(), hints);
    // On what changes it would hide the difference.
    if (highlight.entity != nullptr && !hints.changesTarget) {
        paintHighlight(painter, view(), highlight.appearance);
    }
    if (aim.kind == AimKind::point) {
        paintPointAim(painter);
    }
    if (!cursor || panFrom) {
        return;
    }
    if (windowStep != WindowStep::off) {
        if (windowStep == WindowStep::second) {
            paintRubberWindow(painter, windowCorner, *cursor);
        }
        paintCrosshair(painter, *cursor, canvas.size(), -1);
        return;
    }
    paintAim(painter);
    paintHints(painter);
}

void Canvas::State::paintHints(QPainter& painter) const {
    if (hints.flashes) {
        paintPickFlash(painter, *cursor, aim.pickBox);
    }
    const bool isRefusal = !hints.words.isEmpty();
    const QString& words = isRefusal ? hints.words : targetWords;
    if (!words.isEmpty() && !selectionFrom) {
        paintWords(painter, *cursor, canvas.size(), words,
                   isRefusal ? WordsKind::refusal : WordsKind::note);
    }
}

void Canvas::State::paintAim(QPainter& painter) {
    if (selectionFrom) {
        const PlanPoint corner = view().toPixels(*selectionFrom);
        paintSelectionWindow(
            painter,
            {static_cast<int>(std::floor(corner.x)), static_cast<int>(std::floor(corner.y))},
            *cursor, windowWords());
        paintCrosshair(painter, *cursor, canvas.size(), -1);
        return;
    }
    switch (aim.kind) {
    case AimKind::selection:
    case AimKind::entity:
        paintPickBox(painter, *cursor, aim.pickBox);
        break;
    case AimKind::none:
        paintCrosshair(painter, *cursor, canvas.size(), aim.pickBox);
        break;
    case AimKind::point:
        paintCrosshair(painter, *cursor, canvas.size(), -1);
        break;
    }
}

} // namespace orvex
