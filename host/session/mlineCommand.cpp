// MLINE: asks for the chain of a new multiline, and for its settings at the first prompt.

#include "BlockList.h"
#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbMline.h"
#include "PromptSession.h"
#include "Session.h"
#include "commandOutput.h"
#include "hostText.h"
#include "nameQuestions.h"
#include "newMline.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "systemVariables.h"
#include "textCodec.h"
#include "userFrame.h"
#include "variableText.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace orvex {

namespace {

constexpr std::size_t kFewestForClosing = 3;

// Asks for a name and gives it to a variable; an empty answer keeps the value, "?" lists the names.
void askName(const wchar_t* variable, const char* missing, const char* question,
             const std::vector<std::wstring>& names) {
    const std::wstring prompt = wideHostText(question, {variableText(variable).value_or(L"")});
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
        rejectAnswer(wideHostText(missing, {text}) + namesThereAre(names));
    }
}

void askScale() {
    const std::wstring prompt =
        wideHostText("Scale <%1>: ", {variableText(L"CMLSCALE").value_or(L"")});
    double scale = 0.0;
    if (kdedGetReal(prompt.c_str(), &scale) != kPromptNormal) {
        return;
    }
    if (scale == 0.0) {
        rejectAnswer(wideHostText("a scale of 0 would put all lines in one place"));
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
    if (kdedGetKword(wideHostText("Justification [Top/Zero/Bottom]: ").c_str(), keyword) !=
        kPromptNormal) {
        return;
    }
    const std::wstring_view chosen = keyword;
    setVariableText(L"CMLJUST", chosen == L"Top" ? L"0" : chosen == L"Zero" ? L"1" : L"2");
}

void askSetting(DatabaseCore& core, std::wstring_view chosen) {
    if (chosen == L"Justification") {
        askJustification();
    } else if (chosen == L"Scale") {
        askScale();
    } else if (chosen == L"LAyer") {
        askName(L"CLAYER", markedText("there is no layer '%1'"), markedText("Layer name <%1>: "),
                layerNames(core));
    } else {
        askName(L"CMLSTYLE", markedText("there is no style '%1'"), markedText("Style name <%1>: "),
                styleNames(core));
    }
}

struct Chain {
    std::vector<KdGePoint3d> points;     // user coordinates
    std::vector<KdGePoint3d> lastPoints; // LASTPOINT before each of them
    bool closed = false;
};

KdGePoint3d pointOf(const double* xyz) {
    return {xyz[0], xyz[1], xyz[2]};
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
    if (chain.points.empty()) {
        chain.points.push_back(point);
        return true;
    }
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

void dropLastPoint(Chain& chain) {
    PromptSession::current().lastPoint = chain.lastPoints.back();
    chain.points.pop_back();
    chain.lastPoints.pop_back();
}

int askStart(double* point) {
    kdedInitGet(0, L"Justification Scale STyle LAyer");
    return kdedGetPoint(
        nullptr, wideHostText("Start point or [Justification/Scale/STyle/LAyer]: ").c_str(), point);
}

int askNext(const Chain& chain, double* point) {
    const bool mayClose = chain.points.size() >= kFewestForClosing;
    const KdGePoint3d& last = chain.points.back();
    const double base[3] = {last.x, last.y, last.z};
    PromptSession::current().keepsOnEscape = chain.points.size() > 1;
    kdedInitGet(0, mayClose ? L"Close Undo" : L"Undo");
    return kdedGetPoint(base,
                        (mayClose ? wideHostText("Next point or [Close/Undo]: ")
                                  : wideHostText("Next point or [Undo]: "))
                            .c_str(),
                        point);
}

enum class ChainStep : std::uint8_t { goesOn, isDone, isGivenUp };

ChainStep takeKeyword(DatabaseCore& core, Chain& chain) {
    wchar_t keyword[kPromptTextSize] = L"";
    kdedGetInput(keyword);
    const std::wstring_view chosen = keyword;
    if (chosen == L"Close") {
        chain.closed = true;
        return ChainStep::isDone;
    }
    if (chosen == L"Undo") {
        dropLastPoint(chain);
    } else {
        askSetting(core, chosen);
    }
    return ChainStep::goesOn;
}

ChainStep askPoint(DatabaseCore& core, Chain& chain) {
    const KdGePoint3d lastPoint = PromptSession::current().lastPoint;
    double point[3] = {0.0, 0.0, 0.0};
    switch (chain.points.empty() ? askStart(point) : askNext(chain, point)) {
    case kPromptNormal:
        if (appendPoint(chain, pointOf(point))) {
            chain.lastPoints.push_back(lastPoint);
        } else {
            kdutPrintf(L"%ls",
                       wideHostText("That is where the last point is. It is left out.").c_str());
        }
        return ChainStep::goesOn;
    case kPromptKeyword:
        return takeKeyword(core, chain);
    case kPromptNone:
        return chain.points.empty() ? ChainStep::isGivenUp : ChainStep::isDone;
    default:
        return ChainStep::isGivenUp;
    }
}

// Nothing when the user gives up.
std::optional<Chain> askChain(Session& session) {
    Chain chain;
    ChainStep step = ChainStep::goesOn;
    while (step == ChainStep::goesOn) {
        std::optional<PreviewScope> preview;
        if (!chain.points.empty()) {
            preview.emplace(previewOf(session, chain));
        }
        step = askPoint(session.database().core(), chain);
    }
    return step == ChainStep::isDone ? std::optional(std::move(chain)) : std::nullopt;
}

} // namespace

void mlineCommand(Session& session) {
    const std::optional<Chain> asked = askChain(session);
    if (!asked) {
        return;
    }
    if (!hasCurrentElements(session.database())) {
        kdutPrintf(L"%ls", wideHostText("The current style has no elements to draw.").c_str());
    }
    DatabaseCore& core = session.database().core();
    if (auto mline = makeMline(session, *asked)) {
        BlockEntities& space = core.blocks().modelSpace();
        KdDbStub& stub = core.adopt(std::move(mline), ObjectKind::mline, space.record);
        core.blocks().appendEntity(space, stub);
    } else if (hasCurrentElements(session.database())) {
        kdutPrintf(L"%ls",
                   wideHostText("warning: all points lie in one place; there is nothing to draw.")
                       .c_str());
    }
}

} // namespace orvex
