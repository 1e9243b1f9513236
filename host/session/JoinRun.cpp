#include "JoinRun.h"

#include "KdDbMline.h"
#include "KdDbStub.h"
#include "ScriptSource.h"
#include "Session.h"
#include "elementBreaks.h"
#include "layRight.h"
#include "mlineEdits.h"
#include "moveEnd.h"
#include "userFrame.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace orvex {

namespace {

constexpr int kPickBox = 3; // pixels
constexpr int kViewPixels = 1200;

// The end that a pick means.
MlineEnd nearerEnd(const MlineContent& mline, const KdGePoint3d& pick) {
    const auto distanceTo = [&pick](const ChainVertex& vertex) {
        return std::hypot(vertex.position.x - pick.x, vertex.position.y - pick.y);
    };
    return distanceTo(mline.vertices.front()) <= distanceTo(mline.vertices.back()) ? MlineEnd::start
                                                                                   : MlineEnd::end;
}

std::vector<JoinWall> wallsOf(const std::vector<KdDbStub*>& mlines) {
    std::vector<JoinWall> walls;
    walls.reserve(mlines.size());
    for (KdDbStub* const stub : mlines) {
        const auto content = orvex::contentOf(*stub);
        walls.emplace_back(stub->handle, static_cast<unsigned>(walls.size()),
                           content != nullptr ? *content : MlineContent());
    }
    return walls;
}

} // namespace

JoinRun::JoinRun(Session& session, std::vector<KdDbStub*> mlines, const JoinOptions& options)
    : m_session(session), m_options(options), m_mlines(std::move(mlines)),
      m_walls(wallsOf(m_mlines)), m_plan(planJoins(m_walls, options)), m_planned(m_plan.places),
      m_scratch(session), m_originals(m_mlines.size()) {
    m_scratch.setPickBox(kPickBox);
}

// ---- walls --------------------------------------------------------------------------------------

KdDbMline& JoinRun::copyOf(unsigned wall) {
    return *m_scratch.copy(*m_mlines[wall]);
}

JoinRun::Content JoinRun::contentOf(unsigned wall) {
    Content content = orvex::contentOf(*copyOf(wall).objectId().stub());
    if (m_originals[wall] == nullptr) {
        m_originals[wall] = content;
    }
    return content;
}

void JoinRun::restore(unsigned wall, const Content& content) {
    copyOf(wall).setContent(content);
    m_walls[wall] = JoinWall(m_walls[wall].handle(), m_walls[wall].order(), *content);
}

void JoinRun::setContent(unsigned wall, MlineContent content) {
    restore(wall, std::make_shared<const MlineContent>(std::move(content)));
}

JoinPair JoinRun::pairOf(const JoinPlace& place) const {
    return {m_walls[place.first.wall], m_walls[place.second.wall]};
}

// ---- one joint ----------------------------------------------------------------------------------

void JoinRun::setView(double height) {
    m_viewHeight = height;
    m_scratch.view().setView(m_session.pickView().center(), height);
}

// The view that picks are measured in; it gets smaller where walls are finer.
void JoinRun::setAperture(double aperture, JoinScript& script) {
    constexpr double kMargin = 0.5; // the circle has to stay below the aperture
    const double height = kMargin * aperture * kViewPixels / (kPickBox * std::numbers::sqrt2);
    if (m_viewHeight != 0.0 && height >= kMargin * m_viewHeight) {
        return;
    }
    setView(height);
    const PlanPoint center = m_session.pickView().center();
    script.view({center.x, center.y, 0.0}, height);
}

bool JoinRun::moveEnds(const JoinSteps& steps, JoinScript& script) {
    for (const JoinEndMove& move : steps.moves) {
        const Content before = contentOf(move.pick.wall);
        // As the script's point in the user coordinate system reads back, to the bit.
        const KdGePoint3d to = userToWorld(worldToUser(move.to));
        Result<MlineContent> moved = moveEnd(*before, nearerEnd(*before, move.pick.point), to);
        if (!moved) {
            return false;
        }
        setContent(move.pick.wall, std::move(*moved));
        script.moveEnd(move.pick.point, m_walls[move.pick.wall].handle(), move.to);
    }
    return true;
}

// False where the module can't be played.
bool JoinRun::useTool(const JoinSteps& steps, JoinScript& script) {
    JoinScript answers;
    answers.tool(steps.tool, steps.first.point, m_walls[steps.first.wall].handle(),
                 steps.second.point, m_walls[steps.second.wall].handle());
    ScriptSource source(answers.text(), [](const std::wstring&) {});
    const PromptAnswer command = source.ask({});
    m_failure = m_scratch.run(command.text, source);
    if (m_failure) {
        return false;
    }
    script.append(answers);
    for (const unsigned wall : {steps.first.wall, steps.second.wall}) {
        m_walls[wall] = JoinWall(m_walls[wall].handle(), m_walls[wall].order(), *contentOf(wall));
    }
    return true;
}

bool JoinRun::layRight(unsigned wall, const JoinWall& before, JoinScript& script) {
    if (keepsLines(before, m_walls[wall])) {
        return true;
    }
    const Content content = contentOf(wall);
    const std::optional<StyleLayout> style = styleLayoutOf(*content);
    if (!style) {
        return false;
    }
    Result<MlineContent> laid = orvex::layRight(*content, *style);
    if (!laid) {
        return false;
    }
    setContent(wall, std::move(*laid));
    script.layRight(m_walls[wall].handle());
    return true;
}

// Lays elements right and stops them anew where the tool disturbed them; false where it took
// vertices out, as it may of elements at one place.
bool JoinRun::settle(const JoinPlace& place, const JoinPair& before, JoinScript& script) {
    const JoinPair now = pairOf(place);
    if (!keepsSegments(before.first, now.first) || !keepsSegments(before.second, now.second)) {
        return false;
    }
    if (!layRight(place.first.wall, before.first, script) ||
        !layRight(place.second.wall, before.second, script)) {
        return false;
    }
    for (const RenewedStops& renewed : renewedStops(place, before, pairOf(place))) {
        Result<MlineContent> stopped =
            withBreaks(*contentOf(renewed.wall), renewed.segment, renewed.element, renewed.stops);
        if (!stopped) {
            return false;
        }
        setContent(renewed.wall, std::move(*stopped));
        script.stops(renewed.handle, renewed.segment, renewed.element, renewed.stops);
    }
    return true;
}

bool JoinRun::playSteps(const JoinPlace& place, const JoinSteps& steps, JoinScript& script) {
    const JoinWall first = m_walls[place.first.wall];
    const JoinWall other = m_walls[place.second.wall];
    const JoinWall& second = place.first.wall == place.second.wall ? first : other;
    setAperture(steps.aperture, script);
    return moveEnds(steps, script) && useTool(steps, script) &&
           settle(place, {first, second}, script) && isJoined(place, pairOf(place));
}

// Tries a place once; nothing is changed where it doesn't come out right, and the reason is set.
bool JoinRun::tryPlace(unsigned index, unsigned attempt, JoinScript& script) {
    JoinPlace& place = m_plan.places[index];
    const unsigned first = place.first.wall;
    const unsigned second = place.second.wall;
    const auto steps = joinSteps(place, m_walls[first], m_walls[second], attempt);
    if (!steps) {
        place.reason = JoinReason::noPick;
        return false;
    }
    const Content firstBefore = contentOf(first);
    const Content secondBefore = contentOf(second);
    const double viewBefore = m_viewHeight;
    JoinScript lines;
    lines.comment(joinPlaceTitle(place, m_walls));
    if (playSteps(place, *steps, lines)) {
        script.append(lines);
        return true;
    }
    const bool untouched =
        contentOf(first)->equals(*firstBefore) && contentOf(second)->equals(*secondBefore);
    restore(first, firstBefore);
    restore(second, secondBefore);
    setView(viewBefore);
    place.reason = untouched ? JoinReason::refused : JoinReason::notRight;
    return false;
}

// False where nothing more can be played.
bool JoinRun::playPlace(unsigned index, JoinScript& script) {
    JoinPlace& place = m_plan.places[index];
    for (unsigned attempt = 0; attempt < kJoinAttempts && !m_failure; ++attempt) {
        if (tryPlace(index, attempt, script)) {
            place.result = PlaceResult::joined;
            place.reason = JoinReason::none;
            return true;
        }
    }
    place.result = PlaceResult::left;
    return !m_failure;
}

// ---- the whole plan -----------------------------------------------------------------------------

std::optional<Failure> JoinRun::play() {
    do {
        if (auto failure = playOnce()) {
            return failure;
        }
    } while (leaveWhatIsNotRight());
    m_isPlayed = true;
    return std::nullopt;
}

std::optional<Failure> JoinRun::playOnce() {
    for (const unsigned index : m_plan.order) {
        if (m_plan.places[index].result == PlaceResult::planned && !playPlace(index, m_script)) {
            return m_failure;
        }
    }
    return std::nullopt;
}

// A joint that later ones spoilt is left, and the plan is played again without it. False when all
// are right.
bool JoinRun::leaveWhatIsNotRight() {
    bool foundOne = false;
    for (const unsigned index : m_plan.order) {
        JoinPlace& place = m_plan.places[index];
        if (place.result == PlaceResult::joined && !isJoined(place, pairOf(place))) {
            m_planned[index].result = PlaceResult::left;
            m_planned[index].reason = JoinReason::notRight;
            foundOne = true;
        }
    }
    if (foundOne) {
        startAgain();
    }
    return foundOne;
}

void JoinRun::startAgain() {
    for (unsigned wall = 0; wall < m_originals.size(); ++wall) {
        if (m_originals[wall] != nullptr) {
            restore(wall, m_originals[wall]);
        }
    }
    m_plan.places = m_planned;
    m_script = {};
    m_viewHeight = 0.0;
}

std::string JoinRun::script() const {
    JoinScript whole;
    whole.comment("What joined the plan, joint by joint. Picks are measured in a small view of");
    whole.comment("their own; the last lines bring the view and PICKBOX back.");
    whole.pickBox(kPickBox);
    whole.append(m_script);
    const PlanView& view = m_session.pickView();
    whole.comment("as before");
    whole.view({view.center().x, view.center().y, 0.0}, view.viewHeight());
    whole.pickBox(PromptSession::current().pickBox);
    return whole.text();
}

void JoinRun::giveBack() {
    for (unsigned wall = 0; wall < m_originals.size(); ++wall) {
        if (m_originals[wall] != nullptr) {
            m_scratch.giveBack(*m_mlines[wall]);
        }
    }
}

} // namespace orvex
