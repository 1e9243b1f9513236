#include "GhostDesk.h"

#include "Canvas.h"
#include "DeskPrompts.h"
#include "KdDbEntity.h"
#include "KdDbStub.h"
#include "OverlapPicks.h"
#include "PickTrial.h"
#include "PromptSource.h"
#include "Session.h"
#include "clickedPoint.h"
#include "qtWide.h"
#include "refusalText.h"
#include "toolGhost.h"
#include "userFrame.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace orvex {

namespace {

constexpr double kSlow = 0.1; // pixels a millisecond; slower than this somebody looks at a place
constexpr std::chrono::milliseconds kRest{100};

} // namespace

GhostDesk::GhostDesk(QObject* parent, Canvas& canvas, DeskPrompts& prompts, OverlapPicks& overlaps)
    : QObject(parent), m_prompts(prompts), m_overlaps(overlaps) {
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &GhostDesk::ask);
    connect(&canvas, &Canvas::cursorMoved, this, [this](double x, double y) { moved({x, y}); });
    connect(&canvas, &Canvas::cursorLeft, this, &GhostDesk::drop);
    // The view or the drawing is another one under the same cursor.
    connect(&canvas, &Canvas::hovered, this, [this] {
        if (m_session != nullptr && !m_waitsForMove) {
            m_rest.start(m_asked ? std::chrono::milliseconds{0} : kRest);
        }
    });
    connect(&canvas, &Canvas::clicked, this, &GhostDesk::drop);
    connect(&prompts, &DeskPrompts::answered, this, &GhostDesk::drop);
}

void GhostDesk::setSession(Session& session) {
    m_session = &session;
    drop();
}

bool GhostDesk::changes(const KdDbStub* entity) const {
    return std::find(m_changed.begin(), m_changed.end(), entity) != m_changed.end();
}

bool GhostDesk::isPickTried() const {
    return PickTrialScope::current() != nullptr && m_prompts.request()->kind == PromptKind::entity;
}

bool GhostDesk::isAsking() const {
    return m_session != nullptr && m_prompts.request() != nullptr &&
           (isPickTried() || m_session->toolWatch().stage() != ToolWatch::Stage::none);
}

void GhostDesk::moved(PlanPoint place) {
    if (!isAsking()) {
        return;
    }
    const PlanPoint pixel = m_session->view().toPixels(place);
    const double distance = std::hypot(pixel.x - m_pixel.x, pixel.y - m_pixel.y);
    const auto elapsed = m_sinceMove.isValid() ? static_cast<double>(m_sinceMove.elapsed()) : 0.0;
    const bool isSlow = !m_waitsForMove && distance < kSlow * elapsed;
    m_sinceMove.start();
    m_place = place;
    m_pixel = pixel;
    if (!isSlow) {
        drop();
    }
    m_waitsForMove = false;
    m_rest.start(isSlow ? std::chrono::milliseconds{0} : kRest);
}

void GhostDesk::ask() {
    if (m_waitsForMove || !isAsking()) {
        return;
    }
    Session& session = *m_session;
    if (!session.scene().prepareSome({})) {
        m_rest.start(kRest);
        return;
    }
    KdDbStub* const entity = m_overlaps.at(session, m_place).entity;
    if (entity == nullptr) {
        drop();
        m_waitsForMove = false;
        return;
    }
    const KdGePoint3d point = clickedPoint(m_place.x, m_place.y, session.view().unitsPerPixel());
    const Asked now{entity, point, stateOf(session.view()), session.toolWatch().stage()};
    if (m_asked == now) {
        return;
    }
    m_asked = now;
    m_changed.clear();
    m_before.clear();
    m_after.clear();
    m_words.clear();
    if (isPickTried()) {
        tryPick(*entity, userToWorld(point));
    } else {
        askTool(*entity, point);
    }
    emit changed();
}

void GhostDesk::askTool(KdDbStub& entity, const KdGePoint3d& point) {
    Session& session = *m_session;
    const auto ghost = toolGhost(session, entity, point);
    if (ghost && ghost->refusal) {
        m_words = toQt(refusalText(*ghost->refusal, &entity));
    } else if (ghost) {
        for (const ToolGhost::Outcome& outcome : ghost->changed) {
            m_changed.push_back(outcome.mline);
            m_before.push_back(session.scene().appearance(*outcome.mline));
            m_after.push_back(appearanceOf(session, outcome));
        }
    }
}

void GhostDesk::tryPick(KdDbStub& entity, const KdGePoint3d& place) {
    const auto result = PickTrialScope::current()(entity, place);
    if (!result) {
        m_words = QString::fromStdString(result.failure().text);
        return;
    }
    m_changed.push_back(&entity);
    m_before.push_back(m_session->scene().appearance(entity));
    m_after.push_back(m_session->scene().appearanceOf(**result));
}

// Nothing is asked again before the mouse has moved: after a click it still rests on the result.
void GhostDesk::drop() {
    m_rest.stop();
    m_waitsForMove = true;
    const bool isShown = m_asked.has_value();
    m_asked.reset();
    m_changed.clear();
    m_before.clear();
    m_after.clear();
    m_words.clear();
    if (isShown) {
        emit changed();
    }
}

} // namespace orvex
