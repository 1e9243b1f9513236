#include "ToolWatch.h"

#include "KdDbStub.h"
#include "PromptSession.h"
#include "Session.h"
#include "mlineEdits.h"
#include "mlineTrack.h"

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

struct Side {
    KdGePoint3d from;
    KdGePoint3d to;
};

std::vector<Side> sidesOf(const MlineContent& mline) {
    const MlineChain chain(mline);
    std::vector<Side> sides;
    for (unsigned s = 0; s < chain.segmentCount(); ++s) {
        sides.push_back({chain.vertex(s).position, chain.vertex(chain.next(s)).position});
    }
    return sides;
}

// Above 0 where the point lies to the left.
double sideOf(const Side& line, const KdGePoint3d& point) {
    return (line.to.x - line.from.x) * (point.y - line.from.y) -
           (line.to.y - line.from.y) * (point.x - line.from.x);
}

bool cross(const Side& a, const Side& b) {
    return sideOf(a, b.from) * sideOf(a, b.to) <= 0.0 && sideOf(b, a.from) * sideOf(b, a.to) <= 0.0;
}

bool chainsCross(const MlineContent& first, const MlineContent& second) {
    const std::vector<Side> others = sidesOf(second);
    for (const Side& side : sidesOf(first)) {
        if (std::any_of(others.begin(), others.end(),
                        [&](const Side& other) { return cross(side, other); })) {
            return true;
        }
    }
    return false;
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

ToolPick ToolWatch::pickAt(KdDbStub& mline, const KdGePoint3d& userPoint) const {
    return {&mline, userPoint, m_session.view(), PromptSession::current().pickBox};
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
        m_first = pickAt(entity, answer.point);
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
    using Refuses = ToolKind::Refuses;
    const bool refusesClosed = m_tool->refuses == Refuses::closedBoth ||
                               (m_tool->refuses == Refuses::closedFirst && m_stage == Stage::first);
    const bool isClosed = refusesClosed && content != nullptr && content->closed;
    m_cycle.clear();
    refuse(isClosed ? PickRefusal::closedMultiline : PickRefusal::noCrossing, m_lastPicked, true);
}

void ToolWatch::startCycle(std::vector<KdDbStub*> mlines) {
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
    PickRefusal reason = PickRefusal::nothingChanged;
    if (m_tool != nullptr && m_tool->readsCrossing && first.content != nullptr) {
        if (first.mline == last.mline) {
            reason = PickRefusal::sameMultiline;
        } else if (last.content != nullptr && !chainsCross(*first.content, *last.content)) {
            reason = PickRefusal::noCrossing;
        }
    }
    refuse(reason, last.mline, false);
}

void ToolWatch::refuse(PickRefusal reason, const KdDbStub* entity, bool isTold) {
    if (m_listener) {
        m_listener({reason, entity, isTold});
    }
}

} // namespace orvex
