#include "SessionDisplay.h"

#include "Session.h"

namespace orvex {

void SessionDisplay::showEntity(KdDbStub& entity) {
    m_hidden.erase(&entity);
    m_session.scene().show(entity);
    repaint();
}

void SessionDisplay::hideEntity(KdDbStub& entity) {
    m_hidden.insert(&entity);
    m_session.scene().hide(entity);
    repaint();
}

// The scene settles changes when it is asked next, so all there is to do is to ask it.
void SessionDisplay::refresh() {
    repaint();
}

// A plan view shows the world as it is: display units are drawing units.
KdGePoint3d SessionDisplay::worldToDisplay(const KdGePoint3d& world) const {
    const double place[3] = {world.x, world.y, world.z};
    double display[3] = {world.x, world.y, world.z};
    m_session.view().worldToDisplay(place, display);
    return {display[0], display[1], display[2]};
}

KdGePoint3d SessionDisplay::displayToWorld(const KdGePoint3d& display) const {
    const KdGePoint3d shift = worldToDisplay({});
    return display + (KdGePoint3d() - shift);
}

KdGePoint3d SessionDisplay::viewCenter() const {
    const PlanPoint center = m_session.view().center();
    return {center.x, center.y, 0.0};
}

double SessionDisplay::viewHeight() const {
    return m_session.view().viewHeight();
}

void SessionDisplay::setViewCenter(const KdGePoint3d& center) {
    for (PlanView* const view : {&m_session.view(), &m_session.pickView()}) {
        view->setView({center.x, center.y}, view->viewHeight());
    }
    repaint();
}

void SessionDisplay::setViewHeight(double height) {
    for (PlanView* const view : {&m_session.view(), &m_session.pickView()}) {
        view->setView(view->center(), height);
    }
    repaint();
}

void SessionDisplay::showAll() {
    for (KdDbStub* const entity : m_hidden) {
        m_session.scene().show(*entity);
    }
    m_hidden.clear();
}

void SessionDisplay::repaint() {
    if (m_repaint) {
        m_repaint();
    }
}

} // namespace orvex
