#pragma once

#include "Aim.h"
#include "CanvasHints.h"
#include "CanvasOverlay.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace orvex {

class Session;

// Shows the drawing of a session and takes clicks on it; knows no command and no prompt.
//
// The picture is painted in slices of a few milliseconds between events, over the picture before,
// moved and scaled; so panning and zooming answer at once in a drawing of any size. Wheel: zoom at
// the cursor. Middle button, or a drag of the left one with Ctrl: pan. Middle double click:
// extents.
//
// A selection is made by clicks on entities and by windows, of a drag or of two clicks beside all
// entities; from right to left they take what they touch, else what lies within; Shift takes away.
class Canvas final : public QWidget {
    Q_OBJECT

public:
    explicit Canvas(QWidget* parent = nullptr);
    ~Canvas() override;

    // The session's view follows the widget's size from now on. Null: an empty canvas. Not owned.
    void setSession(Session* session);

    // The aim's preview is called until the next setAim; what it refers to has to live as long.
    void setAim(Aim aim = {});
    [[nodiscard]] const Aim& aim() const;
    // The aim's guide would answer otherwise than before, or these keys are held now.
    void guideChanged();
    void setModifiers(Qt::KeyboardModifiers modifiers);
    // What a click would give; nothing while the cursor is elsewhere.
    [[nodiscard]] std::optional<GuidedPoint> pointAtCursor();
    // A point that is being given in another way: line and preview of the aim end there, wherever
    // the cursor is, until this is called with nothing.
    void showPointAt(std::optional<PlanPoint> point);
    [[nodiscard]] const std::optional<PlanPoint>& shownPoint() const;
    // Drawing units; 0 without a session.
    [[nodiscard]] double unitsPerPixel() const;

    // Takes the focus. Until it is lost or the mouse is pressed, arrows move the cross, with Shift
    // by 10, with Ctrl to the next target; Enter clicks.
    void startCross();
    [[nodiscard]] bool isCrossOn() const;

    // The ground of the plan, 0xRRGGBB. Colours that can't be read on it are changed here only.
    void setGround(std::uint32_t rgb);

    // Shown until they are set anew, or the session is. Entities have to live as long.
    void setSelected(std::vector<KdDbStub*> entities);
    [[nodiscard]] const std::vector<KdDbStub*>& selected() const;
    // Shown, and to be taken hold of, while nothing asks.
    void setGrips(std::vector<PlanPoint> places);
    [[nodiscard]] const std::vector<PlanPoint>& grips() const;
    void setMarks(std::vector<CanvasMark> marks);
    [[nodiscard]] const std::vector<CanvasMark>& marks() const;

    // Shown until they are set anew, or the session is.
    void setHints(CanvasHints hints);
    [[nodiscard]] const CanvasHints& hints() const;
    // Who decides what a pick at a place means; null: what is nearest there. Asked when the cursor
    // has moved.
    void setPickFinder(std::function<PickTarget(PlanPoint place)> finder);

    // Something in the drawing changed or was hidden: paints what is different, soon.
    void refresh();
    // The view was changed by a command.
    void viewChanged();

    void zoomExtents();
    void zoomBy(double factor); // around the middle; above 1 shows less of the plan
    void startZoomWindow();     // the next two clicks, or a drag, give the window
    void zoomPrevious();
    void lookAt(PlanPoint center, double height); // drawing units
    // Gives up a window that is being drawn; false when there is none.
    bool dropWindow();

    // The picture is complete and nothing is waiting to be painted.
    [[nodiscard]] bool isSettled() const;

signals:
    void cursorMoved(double worldX, double worldY); // where a click would go
    void cursorLeft();
    // What a pick at the cursor would find was looked up; null for nothing.
    void hovered(KdDbStub* entity);
    // A click while the aim is entity or point; an exact place isn't to be rounded.
    void clicked(double worldX, double worldY, bool isExact);
    // While the aim is selection or none: a click on an entity, and two corners of a window.
    void picked(double worldX, double worldY, bool takesAway);
    void windowDrawn(PlanPoint first, PlanPoint second, bool takesAway);
    // A grip was clicked, or a drag of it began, which ends as a click of the aim `point`; the
    // right button on one. Its index.
    void gripTaken(int grip);
    // A drag of a selected entity began at a place; it ends like that of a grip.
    void selectionDragged(double worldX, double worldY);
    void gripMenuWanted(int grip, const QPoint& at); // of the screen
    // The context menu was asked for by its key; at a place of the screen.
    void menuWanted(const QPoint& at);
    // The right button, which ends a prompt as Enter does.
    void rightClicked();
    // Which corner of a zoom window is awaited, 1 or 2; 0 when none is any more.
    void zoomCornerAwaited(int corner);
    // A key that the canvas has no use for, so that one can type wherever the focus is.
    void keyTyped(QKeyEvent* event);
    void settled();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    // From grip to grip as long as keys move the cross.
    bool focusNextPrevChild(bool next) override;

private:
    void followMouse();

    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace orvex
