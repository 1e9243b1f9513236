#pragma once

#include "Canvas.h"
#include "CanvasGrips.h"
#include "GroupGhost.h"
#include "PlanPicture.h"
#include "Session.h"
#include "viewChange.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QTimer>

namespace orvex {

// What a canvas shows, and what it is in the middle of.
struct Canvas::State {
    explicit State(Canvas& owner) : canvas(owner) {}

    // Zooming by a window: nothing yet, one corner, or dragging from it.
    enum class WindowStep : std::uint8_t { off, first, second };
    struct Highlight {
        KdDbStub* entity = nullptr;
        Appearance appearance;
    };

    Canvas& canvas;
    Session* session = nullptr;
    bool isShown = false;      // the session's view fits the widget and is painted
    bool wantsExtents = false; // once the scene is up to date
    bool isAtExtents = false;  // nobody has moved the view since
    ViewState shown;           // what the picture is of
    PlanPicture picture;
    ViewHistory history;
    QTimer work; // ticks between all other events while there is something to be done

    CanvasOverlay overlay;
    CanvasGrips grips;
    Aim aim;
    GroupGhost ghost; // of the aim's group
    std::optional<QPoint> cursor;
    std::optional<PlanPoint> shownPoint; // in place of the cursor's
    Highlight highlight;
    bool isHighlightStale = false;
    std::function<PickTarget(PlanPoint place)> pickFinder;
    QString targetWords; // of what is highlighted
    CanvasHints hints;

    // What the guide made of the cursor's place the last time.
    struct Guided {
        PlanPoint cursor;
        Qt::KeyboardModifiers modifiers;
        GuidedPoint point;
    };
    std::optional<Guided> guided;
    std::optional<GuidedPoint> crossTarget; // where the keyboard sent the cross, until it moves on
    bool isCrossOn = false;                 // the keyboard moves it
    bool isCrossActing = false;             // it is what presses or moves the mouse just now
    bool isGuideStale = false;              // and nobody was notified of where the cursor is
    Qt::KeyboardModifiers heldKeys = Qt::NoModifier; // at the last look

    struct Click {
        PlanPoint at;
        Qt::KeyboardModifiers modifiers;
    };
    // A pick that came before the index was up to date with what the drawing looks like.
    std::optional<Click> waitingClick;

    // The left button went down, and it isn't known yet whether it is a click or a drag.
    struct Press {
        QPoint at;
        Qt::KeyboardModifiers modifiers;
        std::optional<std::size_t> grip{}; // that was hit
        bool isOnSelected = false;         // while nothing asks
    };
    std::optional<Press> press;
    std::optional<Click> waitingDrop;       // a grip was let go before the question
    std::optional<PlanPoint> selectionFrom; // the first corner of a selection's window
    std::optional<std::size_t> windowCount; // of what it would take; nothing until it is known
    bool isWindowCountStale = false;
    bool isSelectionDragged = false; // it ends as the button is let go
    // A grip is in hand and the button down: where it is let go answers the question that follows.
    bool isGripDragged = false;

    WindowStep windowStep = WindowStep::off;
    Qt::MouseButton panButton = Qt::NoButton;
    std::optional<QPoint> panFrom;
    QPoint windowCorner;
    QElapsedTimer sinceWheel;

    [[nodiscard]] PlanView& view() const { return session->view(); }
    [[nodiscard]] PlanPoint planAt(const QPoint& pixel) const;
    [[nodiscard]] PlanPoint planAtCursor() const { return planAt(*cursor); }

    GuidedPoint guidedAt(PlanPoint place, Qt::KeyboardModifiers held);
    GuidedPoint guidedAtCursor() { return guidedAt(planAtCursor(), heldKeys); }
    void updateGuide();
    void dropCursor();

    void startCross();
    bool takeCrossKey(const QKeyEvent& key); // false for one of no use
    void moveCross(const QPoint& pixel);
    void sendCross(QPoint direction);
    void clickAtCross(Qt::KeyboardModifiers modifiers);
    void sendCrossToGrip(bool forward); // where there is one to be taken hold of
    void wantMenu();
    [[nodiscard]] QPoint pixelOf(PlanPoint place) const;
    void paintPointAim(QPainter& painter);

    [[nodiscard]] bool takesSelection() const {
        return aim.kind == AimKind::selection || aim.kind == AimKind::none;
    }
    [[nodiscard]] std::optional<std::size_t> gripAt(const QPoint& pixel);
    [[nodiscard]] bool isSelectedAt(const QPoint& pixel) const;
    void takeGrip(std::size_t grip, bool isDragged);
    void dropGrip(const Click& drop);
    void pressLeft(const QPoint& pixel, Qt::KeyboardModifiers modifiers);
    void click(const Click& click);
    void startPan(const QPoint& pixel, Qt::MouseButton button);
    void startDrag(const Press& from);
    void startSelectionWindow(PlanPoint corner, bool isDragged);
    void endSelectionWindow(bool takesAway);
    void updateWindowCount();
    [[nodiscard]] QString windowWords() const;
    [[nodiscard]] bool drawsWindow() const {
        return windowStep != WindowStep::off || selectionFrom || press;
    }

    void startWork();
    void step();
    bool startView();
    void showView();
    void fitWidget();
    void moveTo(const ViewState& state, bool sameMovement);
    [[nodiscard]] PlanBox planToSee();
    void zoomToExtents();
    void updateHighlight();
    [[nodiscard]] KdDbStub* entityAt(PlanPoint place) const;
    [[nodiscard]] PickTarget targetAt(PlanPoint place) const;
    void paintHints(QPainter& painter) const;
    void dropHighlight();
    void updateCursorShape();
    void endWindow(const QPoint& corner);
    void stopWindow();
    void setWindowStep(WindowStep step);
    void paintMarks(QPainter& painter);
    void paintAim(QPainter& painter);
};

} // namespace orvex
