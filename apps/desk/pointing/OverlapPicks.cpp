#include "OverlapPicks.h"

#include "KdDbStub.h"
#include "PromptSession.h"
#include "Session.h"

#include <algorithm>
#include <cmath>

namespace orvex {

namespace {

constexpr double kSamePlace = 3.0; // pixels
constexpr double kAsGood =
    1.0; // pixels; what lies further from the place than the nearest isn't meant

} // namespace

OverlapPicks::Choice OverlapPicks::at(Session& session, PlanPoint place) const {
    const double pixel = session.view().unitsPerPixel();
    const auto found =
        session.scene().picks(place, PromptSession::current().pickBox * pixel, kAsGood * pixel);
    if (found.empty()) {
        return {};
    }
    Choice choice{found.front(), 0, found.size()};
    const bool isSamePlace =
        m_last && m_last->view == stateOf(session.view()) &&
        std::hypot(place.x - m_last->place.x, place.y - m_last->place.y) <= kSamePlace * pixel;
    if (isSamePlace) {
        const auto last = std::find_if(found.begin(), found.end(), [this](const KdDbStub* stub) {
            return stub->handle == m_last->handle;
        });
        if (last != found.end()) {
            choice.index = static_cast<std::size_t>(last - found.begin() + 1) % found.size();
            choice.entity = found[choice.index];
        }
    }
    return choice;
}

OverlapPicks::Choice OverlapPicks::take(Session& session, PlanPoint place) {
    const Choice choice = at(session, place);
    m_last.reset();
    if (choice.entity != nullptr) {
        m_last = {place, stateOf(session.view()), choice.entity->handle};
    }
    return choice;
}

} // namespace orvex
