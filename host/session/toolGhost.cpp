#include "toolGhost.h"

#include "DatabaseCore.h"
#include "KdDbMline.h"
#include "KdDbStub.h"
#include "Scene.h"
#include "ScratchSession.h"
#include "Session.h"
#include "lockedLayers.h"
#include "matchPick.h"
#include "mlineEdits.h"
#include "toolRefusals.h"
#include "userFrame.h"

#include <algorithm>
#include <numbers>

namespace orvex {

namespace {

using Picks = ToolKind::Picks;

// Answers a tool with its picks, each in the view that it was made in, then ends it.
class PickReplay final : public PromptSource {
public:
    PickReplay(ScratchSession& scratch, const ToolKind& tool, std::vector<ToolPick> picks)
        : m_scratch(scratch), m_tool(tool), m_picks(std::move(picks)) {}

    PromptAnswer ask(const PromptRequest& request) override {
        m_asked = request.text;
        PromptAnswer answer;
        if (request.kind == PromptKind::keyword) {
            answer.kind = PromptAnswer::Kind::keyword;
            answer.keyword = m_tool.keyword;
        } else if (request.kind == PromptKind::entity && m_next < m_picks.size()) {
            const ToolPick& pick = m_picks[m_next++];
            m_scratch.view() = pick.view;
            PromptSession::current().pickBox = pick.pickBox;
            answer.kind = PromptAnswer::Kind::point;
            answer.point = pick.point;
            answer.handle = pick.mline->handle;
        }
        return answer;
    }
    // Questions are written, too; all else is what the tool complains about.
    void print(const std::wstring& line) override {
        m_complains = m_complains || !line.starts_with(m_asked);
    }

    [[nodiscard]] bool complains() const { return m_complains; }

private:
    ScratchSession& m_scratch;
    const ToolKind& m_tool;
    std::vector<ToolPick> m_picks;
    std::size_t m_next = 0;
    std::wstring m_asked;
    bool m_complains = false;
};

bool isMatched(const ToolKind& tool, const ToolPick& pick) {
    const double radius = pick.pickBox * pick.view.unitsPerPixel() * std::numbers::sqrt2;
    const auto content = contentOf(*pick.mline);
    return content != nullptr &&
           matchPick(*content, userToWorld(pick.point), radius, tool.matchesGaps);
}

// Of multilines that were picked as the tool wants them.
Result<ToolGhost> played(Session& session, const ToolKind& tool, std::vector<ToolPick> picks) {
    ScratchSession scratch(session);
    std::vector<KdDbStub*> mlines;
    for (const ToolPick& pick : picks) {
        if (std::find(mlines.begin(), mlines.end(), pick.mline) == mlines.end()) {
            mlines.push_back(pick.mline);
            scratch.copy(*pick.mline);
        }
    }
    PickReplay replay(scratch, tool, std::move(picks));
    if (auto failure = scratch.run(L"-MLEDIT", replay)) {
        return std::move(*failure);
    }
    ToolGhost ghost;
    for (KdDbStub* const mline : mlines) {
        auto content = scratch.outcome(*mline);
        const auto before = contentOf(*mline);
        if (content != nullptr && before != nullptr && !content->equals(*before)) {
            ghost.changed.push_back({mline, std::move(content)});
        }
    }
    if (replay.complains()) {
        ghost.refusal = PickRefusal::noCrossing;
    } else if (ghost.changed.empty()) {
        ghost.refusal =
            reasonOfNoChange(tool, *contentOf(*mlines.front()), *contentOf(*mlines.back()),
                             mlines.size() == 1 && tool.picks != Picks::one);
    }
    return ghost;
}

} // namespace

std::optional<PickRefusal> refusalOf(Session& session, KdDbStub& entity,
                                     const KdGePoint3d& userPoint) {
    const ToolWatch& watch = session.toolWatch();
    if (watch.stage() == ToolWatch::Stage::none) {
        return std::nullopt;
    }
    if (isOnLockedLayer(entity)) {
        return PickRefusal::lockedLayer;
    }
    const auto content = contentOf(entity);
    if (content == nullptr) {
        return PickRefusal::noMultiline;
    }
    const ToolKind& tool = *watch.tool();
    const std::optional<ToolPick>& first = watch.first();
    if (refusesAsClosed(tool, *content, watch.stage() == ToolWatch::Stage::first)) {
        return PickRefusal::closedMultiline;
    }
    if (tool.picks == Picks::twoOnOne && first && first->mline != &entity) {
        return PickRefusal::otherMultiline;
    }
    const bool areMatched =
        isMatched(tool, watch.pickAt(entity, userPoint)) && (!first || isMatched(tool, *first));
    return areMatched ? std::nullopt : std::optional(PickRefusal::noMatch);
}

Result<ToolGhost> toolGhost(Session& session, KdDbStub& entity, const KdGePoint3d& userPoint) {
    const ToolWatch& watch = session.toolWatch();
    ToolGhost ghost;
    ghost.refusal = refusalOf(session, entity, userPoint);
    const bool isComplete = watch.stage() == ToolWatch::Stage::first || watch.first().has_value();
    if (ghost.refusal || !watch.isLastPick() || !isComplete) {
        return ghost;
    }
    std::vector<ToolPick> picks;
    if (watch.stage() == ToolWatch::Stage::second) {
        picks.push_back(*watch.first());
    }
    picks.push_back(watch.pickAt(entity, userPoint));
    return played(session, *watch.tool(), std::move(picks));
}

Appearance appearanceOf(Session& session, const ToolGhost::Outcome& outcome) {
    const KdDbObject* const object = outcome.mline->database->load(*outcome.mline);
    KdDbMline mline;
    mline.setTraits(static_cast<const KdDbMline*>(object)->traits());
    mline.setContent(outcome.content);
    return session.scene().appearanceOf(mline);
}

} // namespace orvex
