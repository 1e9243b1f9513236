// MLINE: asks for the chain of a new multiline, and for its settings at the first prompt.

#include "BlockList.h"
#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbMline.h"
#include "PromptSession.h"
#include "Session.h"
#include "commandOutput.h"
#include "newMline.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "systemVariables.h"
#include "textCodec.h"
#include "userFrame.h"
#include "variableText.h"

#include <optional>
#include <string_view>

namespace orvex {

namespace {

constexpr std::size_t kFewestForClosing = 3;

// Asks for a text and gives it to a variable; an empty answer keeps the value.
void askSetting(const wchar_t* variable, const std::wstring& question) {
    const std::wstring prompt = question + L" <" + variableText(variable).value_or(L"") + L">: ";
    wchar_t text[kPromptTextSize] = L"";
    if (kdedGetString(prompt.c_str(), text) != kPromptNormal) {
        return;
    }
    if (const auto refusal = setVariableText(variable, text)) {
        rejectAnswer(widen(refusal->text));
    }
}

void askScale() {
    const std::wstring prompt = L"Scale <" + variableText(L"CMLSCALE").value_or(L"") + L">: ";
    double scale = 0.0;
    if (kdedGetReal(prompt.c_str(), &scale) == kPromptNormal) {
        resbuf value;
        value.restype = kResultReal;
        value.resval.rreal = scale;
        kdedSetVar(L"CMLSCALE", &value);
    }
}

void askJustification() {
    wchar_t keyword[kPromptTextSize] = L"";
    kdedInitGet(0, L"Top Zero Bottom");
    if (kdedGetKword(L"Justification [Top/Zero/Bottom]: ", keyword) != kPromptNormal) {
        return;
    }
    const std::wstring_view chosen = keyword;
    setVariableText(L"CMLJUST", chosen == L"Top" ? L"0" : chosen == L"Zero" ? L"1" : L"2");
}

void askSettings() {
    wchar_t keyword[kPromptTextSize] = L"";
    kdedGetInput(keyword);
    const std::wstring_view chosen = keyword;
    if (chosen == L"Justification") {
        askJustification();
    } else if (chosen == L"Scale") {
        askScale();
    } else {
        askSetting(L"CMLSTYLE", L"Style name");
    }
}

struct Chain {
    std::vector<KdGePoint3d> points; // user coordinates
    bool closed = false;
};

KdGePoint3d pointOf(const double* xyz) {
    return {xyz[0], xyz[1], xyz[2]};
}

bool askStart(Chain& chain) {
    for (;;) {
        double point[3] = {0.0, 0.0, 0.0};
        kdedInitGet(0, L"Justification Scale STyle");
        switch (kdedGetPoint(nullptr, L"Start point or [Justification/Scale/STyle]: ", point)) {
        case kPromptNormal:
            chain.points.push_back(pointOf(point));
            return true;
        case kPromptKeyword:
            askSettings();
            break;
        default:
            return false;
        }
    }
}

// In the current style and settings; null when there is nothing to draw.
std::unique_ptr<KdDbMline> makeMline(Session& session, const Chain& chain) {
    std::vector<KdGePoint3d> points;
    points.reserve(chain.points.size());
    for (const KdGePoint3d& point : chain.points) {
        points.push_back(userToWorld(point));
    }
    return newMline(session.database(), points, chain.closed,
                    userDirectionToWorld({0.0, 0.0, 1.0}));
}

// A multiline is flat: it stays on the level of its start.
void appendPoint(Chain& chain, KdGePoint3d point) {
    point.z = chain.points.front().z;
    chain.points.push_back(point);
}

// Shows the multiline with the cursor as its next point. The chain has to outlive it.
PromptPreview previewOf(Session& session, const Chain& chain) {
    return [&session, &chain](const KdGePoint3d& cursor) {
        Chain ahead = chain;
        appendPoint(ahead, worldToUser(cursor));
        return makeMline(session, ahead);
    };
}

// Nothing when the user gives up.
std::optional<Chain> askChain(Session& session) {
    Chain chain;
    if (!askStart(chain)) {
        return std::nullopt;
    }
    const PreviewScope preview(previewOf(session, chain));
    for (;;) {
        const bool mayClose = chain.points.size() >= kFewestForClosing;
        kdedInitGet(0, mayClose ? L"Close" : nullptr);
        const KdGePoint3d& last = chain.points.back();
        const double base[3] = {last.x, last.y, last.z};
        double point[3] = {0.0, 0.0, 0.0};
        switch (
            kdedGetPoint(base, mayClose ? L"Next point or [Close]: " : L"Next point: ", point)) {
        case kPromptNormal:
            appendPoint(chain, pointOf(point));
            break;
        case kPromptKeyword:
            chain.closed = true;
            return chain;
        case kPromptNone:
            return chain;
        default:
            return std::nullopt;
        }
    }
}

} // namespace

void mlineCommand(Session& session) {
    const std::optional<Chain> asked = askChain(session);
    if (!asked) {
        return;
    }
    if (!hasCurrentElements(session.database())) {
        kdutPrintf(L"The current style has no elements to draw.");
    }
    DatabaseCore& core = session.database().core();
    if (auto mline = makeMline(session, *asked)) {
        BlockEntities& space = core.blocks().modelSpace();
        KdDbStub& stub = core.adopt(std::move(mline), ObjectKind::mline, space.record);
        core.blocks().appendEntity(space, stub);
    }
}

} // namespace orvex
