// MLINE: asks for the chain of a new multiline, and for its settings at the first prompt.

#include "BlockList.h"
#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbMline.h"
#include "PromptSession.h"
#include "Session.h"
#include "commandOutput.h"
#include "nameQuestions.h"
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

// Asks for a name and gives it to a variable; an empty answer keeps the value, "?" lists the names.
void askName(const wchar_t* variable, const wchar_t* what, const std::wstring& question,
             const std::vector<std::wstring>& names) {
    const std::wstring prompt = question + L" <" + variableText(variable).value_or(L"") + L">: ";
    wchar_t text[kPromptTextSize] = L"";
    offerNames(names);
    if (kdedGetString(prompt.c_str(), text) != kPromptNormal) {
        return;
    }
    if (std::wstring_view(text) == L"?") {
        for (const std::wstring& name : names) {
            kdutPrintf(L"%ls", name.c_str());
        }
    } else if (setVariableText(variable, text)) {
        rejectAnswer(L"there is no " + std::wstring(what) + L" '" + text + L"'" +
                     namesThereAre(names));
    }
}

void askScale() {
    const std::wstring prompt = L"Scale <" + variableText(L"CMLSCALE").value_or(L"") + L">: ";
    double scale = 0.0;
    if (kdedGetReal(prompt.c_str(), &scale) != kPromptNormal) {
        return;
    }
    if (scale == 0.0) {
        rejectAnswer(L"a scale of 0 would put all lines in one place");
    } else {
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

void askSettings(DatabaseCore& core) {
    wchar_t keyword[kPromptTextSize] = L"";
    kdedGetInput(keyword);
    const std::wstring_view chosen = keyword;
    if (chosen == L"Justification") {
        askJustification();
    } else if (chosen == L"Scale") {
        askScale();
    } else if (chosen == L"LAyer") {
        askName(L"CLAYER", L"layer", L"Layer name", layerNames(core));
    } else {
        askName(L"CMLSTYLE", L"style", L"Style name", styleNames(core));
    }
}

struct Chain {
    std::vector<KdGePoint3d> points; // user coordinates
    bool closed = false;
};

KdGePoint3d pointOf(const double* xyz) {
    return {xyz[0], xyz[1], xyz[2]};
}

bool askStart(DatabaseCore& core, Chain& chain) {
    for (;;) {
        double point[3] = {0.0, 0.0, 0.0};
        kdedInitGet(0, L"Justification Scale STyle LAyer");
        switch (
            kdedGetPoint(nullptr, L"Start point or [Justification/Scale/STyle/LAyer]: ", point)) {
        case kPromptNormal:
            chain.points.push_back(pointOf(point));
            return true;
        case kPromptKeyword:
            askSettings(core);
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

// A multiline is flat: it stays on the level of its start. False for the place of the last point,
// which would be no vertex.
bool appendPoint(Chain& chain, KdGePoint3d point) {
    point.z = chain.points.front().z;
    if ((point - chain.points.back()).isZeroLength()) {
        return false;
    }
    chain.points.push_back(point);
    return true;
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
    if (!askStart(session.database().core(), chain)) {
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
            if (!appendPoint(chain, pointOf(point))) {
                kdutPrintf(L"That is where the last point is. It is left out.");
            }
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
    } else if (hasCurrentElements(session.database())) {
        kdutPrintf(L"warning: all points lie in one place; there is nothing to draw.");
    }
}

} // namespace orvex
