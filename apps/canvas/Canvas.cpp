#include "Canvas.h"

#include "CanvasState.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace orvex {

namespace {

constexpr double kZoomOfNotch = 1.2;
constexpr double kAnglesOfNotch = 120.0; // eighths of a degree
constexpr int kDragDistance = 3;         // pixels; less is a click
constexpr int kMoveDistance = 10;        // more than a click that slipped moves what is selected
constexpr int kPauseOfWheel = 600;       // milliseconds; what comes later is a new movement

} // namespace

Canvas::Canvas(QWidget* parent) : QWidget(parent), m_state(std::make_unique<State>(*this)) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&m_state->work, &QTimer::timeout, this, [this] {
        m_state->step();
        m_state->updateCursorShape();
    });
}

Canvas::~Canvas() = default;

void Canvas::setSession(Session* session) {
    State& s = *m_state;
    s.work.stop();
    s.session = session;
    s.isShown = false;
    s.isAtExtents = false;
    s.wantsExtents = false;
    s.shown = {};
    s.history.clear();
    s.highlight = {};
    s.panFrom.reset();
    s.waitingClick.reset();
    s.press.reset();
    s.selectionFrom.reset();
    s.setWindowStep(State::WindowStep::off);
    s.overlay.clear();
    s.aim = {};
    s.ghost.setGroup({});
    s.grips.setPlaces({});
    s.isGripDragged = false;
    s.waitingDrop.reset();
    s.shownPoint.reset();
    s.crossTarget.reset();
    s.guided.reset();
    s.hints = {};
    s.picture.setScene(session != nullptr ? &session->scene() : nullptr);
    s.updateCursorShape();
    s.startWork();
    update();
}

void Canvas::setAim(Aim aim) {
    m_state->aim = std::move(aim);
    m_state->waitingClick.reset();
    m_state->selectionFrom.reset();
    m_state->press.reset();
    m_state->isHighlightStale = true;
    m_state->ghost.setGroup(m_state->aim.group);
    if (m_state->aim.kind == AimKind::point && m_state->waitingDrop) {
        m_state->waitingClick = std::exchange(m_state->waitingDrop, std::nullopt);
    } else if (m_state->aim.kind != AimKind::point) {
        m_state->waitingDrop.reset();
        m_state->isGripDragged = false;
    }
    guideChanged();
}

void Canvas::guideChanged() {
    m_state->guided.reset();
    m_state->isGuideStale = m_state->aim.guide != nullptr;
    m_state->startWork();
    update();
}

void Canvas::setModifiers(Qt::KeyboardModifiers modifiers) {
    if (std::exchange(m_state->heldKeys, modifiers) != modifiers && m_state->aim.guide) {
        guideChanged();
    }
}

std::optional<GuidedPoint> Canvas::pointAtCursor() {
    const State& s = *m_state;
    return s.isShown && s.cursor ? std::optional(m_state->guidedAtCursor()) : std::nullopt;
}

void Canvas::showPointAt(std::optional<PlanPoint> point) {
    if (std::exchange(m_state->shownPoint, point) != point) {
        update();
    }
}

const std::optional<PlanPoint>& Canvas::shownPoint() const {
    return m_state->shownPoint;
}

double Canvas::unitsPerPixel() const {
    return m_state->session != nullptr && m_state->isShown ? m_state->view().unitsPerPixel() : 0.0;
}

void Canvas::setSelected(std::vector<KdDbStub*> entities) {
    m_state->overlay.setSelected(std::move(entities));
    update();
}

void Canvas::setGround(std::uint32_t rgb) {
    m_state->picture.setGround(rgb);
    m_state->startWork();
    update();
}

const std::vector<KdDbStub*>& Canvas::selected() const {
    return m_state->overlay.selected();
}

void Canvas::setGrips(std::vector<PlanPoint> places) {
    m_state->grips.setPlaces(std::move(places));
    update();
}

const std::vector<PlanPoint>& Canvas::grips() const {
    return m_state->grips.places();
}

void Canvas::setMarks(std::vector<CanvasMark> marks) {
    m_state->overlay.setMarks(std::move(marks));
    update();
}

const std::vector<CanvasMark>& Canvas::marks() const {
    return m_state->overlay.marks();
}

void Canvas::setHints(CanvasHints hints) {
    m_state->hints = std::move(hints);
    update();
}

const CanvasHints& Canvas::hints() const {
    return m_state->hints;
}

void Canvas::setPickFinder(std::function<PickTarget(PlanPoint place)> finder) {
    m_state->pickFinder = std::move(finder);
}

const Aim& Canvas::aim() const {
    return m_state->aim;
}

void Canvas::refresh() {
    m_state->startWork();
    update();
}

void Canvas::viewChanged() {
    State& s = *m_state;
    if (s.session != nullptr && s.isShown && stateOf(s.view()) != s.shown) {
        s.history.leave(s.shown);
        s.isAtExtents = false;
        s.showView();
    }
}

void Canvas::zoomExtents() {
    if (m_state->session != nullptr) {
        m_state->wantsExtents = true;
        m_state->startWork();
    }
}

void Canvas::zoomBy(double factor) {
    State& s = *m_state;
    if (s.session != nullptr && s.isShown && std::isfinite(factor) && factor > 0.0) {
        s.moveTo(zoomedAt(s.view(), {width() / 2.0, height() / 2.0}, factor), false);
    }
}

void Canvas::startZoomWindow() {
    if (m_state->session != nullptr && m_state->isShown) {
        m_state->setWindowStep(State::WindowStep::first);
        m_state->dropHighlight();
        update();
    }
}

void Canvas::zoomPrevious() {
    State& s = *m_state;
    ViewState viewState;
    if (s.session != nullptr && s.isShown && s.history.back(viewState)) {
        s.isAtExtents = false;
        s.view().setView(viewState.center, viewState.height);
        s.showView();
    }
}

void Canvas::lookAt(PlanPoint center, double height) {
    State& s = *m_state;
    if (s.session != nullptr && s.isShown && height > 0.0) {
        s.moveTo({center, height}, false);
    }
}

bool Canvas::dropWindow() {
    const bool draws = m_state->drawsWindow();
    if (draws) {
        m_state->stopWindow();
    }
    return draws;
}

bool Canvas::isSettled() const {
    return !m_state->work.isActive();
}

bool Canvas::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::WindowActivate:
    case QEvent::Move:
    case QEvent::Resize:
        QMetaObject::invokeMethod(this, &Canvas::followMouse, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

// The mouse may lie elsewhere on the canvas without having moved: a menu or a dialog was closed, a
// panel was opened.
void Canvas::followMouse() {
    const QPoint at = mapFromGlobal(QCursor::pos());
    const bool isHere = isActiveWindow() && QApplication::activePopupWidget() == nullptr &&
                        QApplication::widgetAt(QCursor::pos()) == this;
    if (isHere && !m_state->isCrossOn && m_state->cursor != at) {
        QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, QGuiApplication::mouseButtons(),
                         QGuiApplication::keyboardModifiers());
        mouseMoveEvent(&move);
    }
}

void Canvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    // What marks are painted on, for their colours.
    painter.setBackground(QColor::fromRgb(m_state->picture.ground()));
    const double ratio = devicePixelRatioF();
    const QRect exposed = event->rect();
    painter.save();
    painter.scale(1.0 / ratio, 1.0 / ratio);
    m_state->picture.draw(painter, QRectF(exposed.x() * ratio, exposed.y() * ratio,
                                          exposed.width() * ratio, exposed.height() * ratio)
                                       .toAlignedRect());
    painter.restore();
    if (m_state->session != nullptr && m_state->isShown) {
        m_state->paintMarks(painter);
    }
}

void Canvas::resizeEvent(QResizeEvent* /*event*/) {
    State& s = *m_state;
    if (s.session == nullptr) {
        return;
    }
    if (s.isShown) {
        s.fitWidget();
        s.wantsExtents = s.wantsExtents || s.isAtExtents;
        s.showView();
    }
    s.startWork();
}

void Canvas::mousePressEvent(QMouseEvent* event) {
    State& s = *m_state;
    s.isCrossOn = s.isCrossOn && s.isCrossActing;
    s.cursor = event->pos();
    s.heldKeys = event->modifiers();
    if (s.session == nullptr || !s.isShown || s.panFrom) {
        return;
    }
    if (event->button() == Qt::MiddleButton) {
        s.startPan(event->pos(), event->button());
    } else if (event->button() == Qt::RightButton) {
        const auto grip = s.gripAt(event->pos());
        if (grip) {
            emit gripMenuWanted(static_cast<int>(*grip), event->globalPos());
        } else if (!dropWindow()) {
            emit rightClicked();
        }
    } else if (event->button() == Qt::LeftButton) {
        s.pressLeft(event->pos(), event->modifiers());
    }
    update();
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
    State& s = *m_state;
    s.cursor = event->pos();
    s.crossTarget.reset();
    s.heldKeys = event->modifiers();
    if (s.session == nullptr || !s.isShown) {
        return;
    }
    if (s.press && (event->pos() - s.press->at).manhattanLength() >=
                       (s.press->isOnSelected && !s.press->grip ? kMoveDistance : kDragDistance)) {
        s.startDrag(*std::exchange(s.press, std::nullopt));
    }
    if (s.selectionFrom) {
        s.isWindowCountStale = true;
        s.startWork();
    }
    if (s.panFrom) {
        const QPoint direction = event->pos() - *s.panFrom;
        s.panFrom = event->pos();
        s.moveTo(panned(s.view(),
                        {static_cast<double>(direction.x()), static_cast<double>(direction.y())}),
                 true);
    } else if (s.aim.kind != AimKind::point) {
        s.isHighlightStale = true;
        s.startWork();
    }
    update();
    if (s.aim.guide) {
        s.isGuideStale = true; // asked once for all moves until then
        s.startWork();
    } else {
        const PlanPoint at = s.planAtCursor();
        emit cursorMoved(at.x, at.y);
    }
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
    State& s = *m_state;
    s.cursor = event->pos();
    if (event->button() == Qt::LeftButton && s.press) {
        const State::Press press = *std::exchange(s.press, std::nullopt);
        s.isHighlightStale = true;
        if (s.selectionFrom) {
            s.endSelectionWindow((press.modifiers & Qt::ShiftModifier) != 0);
        } else if (press.grip) {
            s.takeGrip(*press.grip, false);
        } else if (s.windowStep == State::WindowStep::off) {
            s.click({s.planAt(press.at), press.modifiers});
        }
    } else if (event->button() == Qt::LeftButton && s.isGripDragged) {
        s.dropGrip({s.planAt(event->pos()), event->modifiers()});
    } else if (event->button() == Qt::LeftButton && s.selectionFrom && s.isSelectionDragged) {
        s.endSelectionWindow((event->modifiers() & Qt::ShiftModifier) != 0);
    } else if (s.panFrom && event->button() == s.panButton) {
        s.panFrom.reset();
        s.isHighlightStale = true;
        s.updateCursorShape();
        s.startWork();
        update();
    } else if (event->button() == Qt::LeftButton && s.windowStep == State::WindowStep::second &&
               (event->pos() - s.windowCorner).manhattanLength() >=
                   QApplication::startDragDistance()) {
        s.endWindow(event->pos()); // it was a drag
    }
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        m_state->panFrom.reset();
        zoomExtents();
    } else {
        mousePressEvent(event); // quick clicks are clicks
    }
}

void Canvas::wheelEvent(QWheelEvent* event) {
    State& s = *m_state;
    const int turn = event->angleDelta().y();
    if (s.session == nullptr || !s.isShown || turn == 0) {
        return;
    }
    const bool goesOn = s.sinceWheel.isValid() && s.sinceWheel.elapsed() < kPauseOfWheel;
    s.sinceWheel.start();
    const QPoint pixel = event->position().toPoint();
    s.moveTo(zoomedAt(s.view(), {pixel.x() + 0.5, pixel.y() + 0.5},
                      std::pow(kZoomOfNotch, turn / kAnglesOfNotch)),
             goesOn);
    event->accept();
}

void Canvas::leaveEvent(QEvent* /*event*/) {
    if (!m_state->isCrossOn) {
        m_state->dropCursor();
    }
}

void Canvas::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason) {
        return; // a menu, and then as before
    }
    if (std::exchange(m_state->isCrossOn, false) && !underMouse()) {
        m_state->dropCursor();
    }
}

// The button, or its key, came before.
void Canvas::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
}

bool Canvas::focusNextPrevChild(bool next) {
    if (m_state->isCrossOn) {
        m_state->sendCrossToGrip(next);
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

void Canvas::startCross() {
    setFocus(Qt::ShortcutFocusReason);
    m_state->startCross();
}

bool Canvas::isCrossOn() const {
    return m_state->isCrossOn;
}

void Canvas::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && dropWindow()) {
        return;
    }
    if (event->key() == Qt::Key_Menu ||
        (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)) {
        return m_state->wantMenu();
    }
    if (!m_state->isCrossOn || !m_state->takeCrossKey(*event)) {
        emit keyTyped(event);
    }
}

} // namespace orvex
