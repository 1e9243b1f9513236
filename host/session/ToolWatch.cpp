#include "ToolWatch.h"

#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbStub.h"
#include "PromptSession.h"
#include "Session.h"
#include "mlineEdits.h"
#include "toolRefusals.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace orvex {

namespace {

using Picks = ToolKind::Picks;

constexpr std::wstring_view kUndo = L"UNDO";

// Whether the question is for a tool of the module: all of them and nothing else is on offer.
bool offersTools(const PromptRequest& request) {
    return request.kind == PromptKind::keyword && request.keywords.size() == toolKinds().size() &&
           std::all_of(
               request.keywords.begin(), request.keywords.end(),
               [](const std::wstring& keyword) { return findToolKind(keyword) != nullptr; });
}

} // namespace

void ToolWatch::chooseTool(std::wstring_view keyword) {
    m_tool = findToolKind(keyword);
    m_firstPrompt.clear();
}

bool ToolWatch::isLastPick() const {
    return m_tool != nullptr &&
           m_stage == (m_tool->picks == Picks::one ? Stage::first : Stage::second);
}

ToolPick ToolWatch::pickIn(const PlanView& view, KdDbStub& mline, const KdGePoint3d& userPoint) {
    return {&mline, userPoint, view, PromptSession::current().pickBox};
}

ToolPick ToolWatch::pickAt(KdDbStub& mline, const KdGePoint3d& userPoint) const {
    return pickIn(m_session.view(), mline, userPoint);
}

void ToolWatch::commandEnded() {
    endCycle();
    m_tool = nullptr;
    m_stage = Stage::none;
    m_first.reset();
}

void ToolWatch::asking(const PromptRequest& request) {
    endCycle();
    m_stage = Stage::none;
    if (m_tool == nullptr || request.kind != PromptKind::entity) {
        return;
    }
    if (m_firstPrompt.empty()) {
        m_firstPrompt = request.text;
    }
    // A cycle begins with the same words as the run, or with the keyword on offer.
    const bool isFirst = request.text == m_firstPrompt ||
                         std::find(request.keywords.begin(), request.keywords.end(), kUndo) !=
                             request.keywords.end();
    m_stage = isFirst ? Stage::first : Stage::second;
    if (isFirst) {
        m_first.reset();
        const PromptSource* const source = m_session.source();
        if (source != nullptr && source->mayTakeBack()) {
            m_session.database().core().changes().mark();
        }
    }
}

void ToolWatch::answered(const PromptRequest& request, const PromptAnswer& answer) {
    if (answer.kind == PromptAnswer::Kind::keyword && offersTools(request)) {
        chooseTool(answer.keyword);
    }
}

void ToolWatch::picked(const PromptAnswer& answer, KdDbStub& entity) {
    if (m_stage == Stage::none) {
        return;
    }
    m_lastPicked = &entity;
    if (entity.kind != ObjectKind::mline) {
        refuse(PickRefusal::noMultiline, &entity, false);
    } else if (m_stage == Stage::first) {
        m_first = pickIn(m_session.pickView(), entity, answer.point);
        if (m_tool->picks == Picks::one) {
            startCycle({&entity});
        }
    } else if (m_tool->picks == Picks::twoOnOne && m_first && m_first->mline != &entity) {
        refuse(PickRefusal::otherMultiline, &entity, false);
    } else if (m_first) {
        startCycle({m_first->mline, &entity});
    }
}

void ToolWatch::missed(PickRefusal reason, KdDbStub* entity, bool isTold) {
    refuse(reason, entity, isTold);
}

// A tool says nothing but what it refuses.
void ToolWatch::printed(const std::wstring& /*text*/) {
    if (m_stage == Stage::none || m_lastPicked == nullptr) {
        return;
    }
    const auto content = contentOf(*m_lastPicked);
    const bool isClosed =
        content != nullptr && refusesAsClosed(*m_tool, *content, m_stage == Stage::first);
    m_cycle.clear();
    refuse(isClosed ? PickRefusal::closedMultiline : PickRefusal::noCrossing, m_lastPicked, true);
}

void ToolWatch::startCycle(const std::vector<KdDbStub*>& mlines) {
    for (KdDbStub* const mline : mlines) {
        m_cycle.push_back({mline, contentOf(*mline)});
    }
}

void ToolWatch::endCycle() {
    const std::vector<Before> cycle = std::exchange(m_cycle, {});
    const bool isChanged = std::any_of(cycle.begin(), cycle.end(), [](const Before& before) {
        const auto now = contentOf(*before.mline);
        return now != before.content &&
               (now == nullptr || before.content == nullptr || !now->equals(*before.content));
    });
    if (cycle.empty() || isChanged) {
        return;
    }
    const Before& first = cycle.front();
    const Before& last = cycle.back();
    const bool isKnown = m_tool != nullptr && first.content != nullptr && last.content != nullptr;
    const PickRefusal reason = isKnown ? reasonOfNoChange(*m_tool, *first.content, *last.content,
                                                          first.mline == last.mline)
                                       : PickRefusal::nothingChanged;
    refuse(reason, last.mline, false);
}

void ToolWatch::refuse(PickRefusal reason, const KdDbStub* entity, bool isTold) {
    if (m_listener) {
        m_listener({reason, entity, isTold});
    }
}

} // namespace orvex
