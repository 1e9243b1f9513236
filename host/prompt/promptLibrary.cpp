#include "promptLibrary.h"

#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbStub.h"
#include "KdDocument.h"
#include "ObjectTable.h"
#include "PromptSession.h"
#include "PromptWatcher.h"
#include "ScriptRecord.h"
#include "TransparentCommands.h"
#include "boundedCopy.h"
#include "coordinateFrames.h"
#include "hostText.h"
#include "kddbObjects.h"
#include "keywords.h"
#include "lockedLayers.h"
#include "promptExchange.h"
#include "promptStatus.h"
#include "userFrame.h"

#include <utility>

namespace orvex {

namespace {

// Runs a transparent command, which leaves nothing in the prompts but the answer that it may give.
std::optional<PromptAnswer> runTransparent(const std::wstring& name, const PromptRequest& request) {
    PromptSession& session = PromptSession::current();
    const PromptSession before = session;
    session.watcher = nullptr;
    session.preview = nullptr;
    session.previews = nullptr;
    session.motion = {};
    session.isWithin = true;
    auto answer = session.transparent->run(name, request);
    session = before;
    return answer;
}

// By the source, or what a transparent command said before.
PromptAnswer answerOf(const PromptRequest& request) {
    PromptSession& session = PromptSession::current();
    if (session.transparent != nullptr) {
        if (auto ahead = session.transparent->answerAhead(request)) {
            return std::move(*ahead);
        }
    }
    for (;;) {
        PromptAnswer answer = session.source->ask(request);
        const bool needsBlank = !request.text.empty() && !request.text.ends_with(L' ');
        printLines(request.text + (needsBlank ? L" " : L"") + answer.echo);
        if (session.record != nullptr && request.kind != PromptKind::command) {
            session.record->answer(answer);
        }
        if (answer.kind != PromptAnswer::Kind::transparent) {
            return answer;
        }
        if (session.transparent == nullptr) {
            return {};
        }
        if (auto instead = runTransparent(answer.text, request)) {
            return std::move(*instead);
        }
    }
}

} // namespace

PromptAnswer askUser(PromptKind kind, const wchar_t* prompt,
                     const std::optional<KdGePoint3d>& base) {
    PromptSession& session = PromptSession::current();
    session.errorNumber = 0;
    session.lastKeyword.clear();

    PromptRequest request;
    request.kind = kind;
    request.text = prompt != nullptr ? prompt : L"";
    request.keywords = splitKeywords(std::exchange(session.armedKeywords, {}));
    request.completions = std::exchange(session.completions, {});
    request.base = base;
    request.isWithin = session.isWithin;
    request.keepsOnEscape = std::exchange(session.keepsOnEscape, false);
    if (kind == PromptKind::point || (kind == PromptKind::real && base)) {
        request.preview = session.preview;
        request.previews = session.previews;
        request.motion = session.motion;
    }

    PromptAnswer answer;
    if (session.source == nullptr) {
        return answer;
    }
    if (session.watcher != nullptr) {
        session.watcher->asking(request);
    }
    answer = answerOf(request);
    if (answer.kind == PromptAnswer::Kind::keyword) {
        const auto keyword = matchKeyword(request.keywords, answer.keyword);
        session.lastKeyword = keyword.value_or(L"");
        answer.keyword = session.lastKeyword;
        if (!keyword) {
            session.source->reject(wideHostText("the keyword isn't on offer"));
            answer.kind = PromptAnswer::Kind::cancel;
        }
    }
    if (session.watcher != nullptr) {
        session.watcher->answered(request, answer);
    }
    return answer;
}

} // namespace orvex

namespace {

using orvex::PromptAnswer;
using orvex::PromptKind;
using orvex::PromptSession;

constexpr int kErrorNothingFound = 7;

void putText(wchar_t* buffer, const std::wstring& text) {
    wcscpy_s(buffer, kPromptTextSize, text.c_str());
}

// An entity named by its handle is found wherever it is, seen or not.
KdDbStub* entityOfHandle(std::uint64_t handle) {
    KdDocument* const document = curDoc();
    if (handle == 0 || document == nullptr || document->database() == nullptr) {
        return nullptr;
    }
    KdDbStub* const stub = document->database()->core().objects().findHandle(handle);
    const bool isEntity =
        stub != nullptr && !stub->erased &&
        (stub->kind == orvex::ObjectKind::entity || stub->kind == orvex::ObjectKind::mline);
    return isEntity ? stub : nullptr;
}

// What a command may change: no further entity is looked for where the one found is locked.
KdDbStub* pickedEntity(const PromptAnswer& answer) {
    KdDbStub* const found = orvex::entityOf(answer);
    const bool isUsable = found != nullptr && !orvex::isOnLockedLayer(*found);
    if (orvex::PromptWatcher* const watcher = PromptSession::current().watcher) {
        if (isUsable) {
            watcher->picked(answer, *found);
        } else {
            watcher->missed(found == nullptr ? orvex::PickRefusal::nothingHere
                                             : orvex::PickRefusal::lockedLayer,
                            found, false);
        }
    }
    return isUsable ? found : nullptr;
}

void putPoint(double* target, const KdGePoint3d& point) {
    target[0] = point.x;
    target[1] = point.y;
    target[2] = point.z;
}

// What every prompt makes of the answers that are no value of its own.
int statusWithoutValue(const PromptAnswer& answer) {
    switch (answer.kind) {
    case PromptAnswer::Kind::empty:
        return kPromptNone;
    case PromptAnswer::Kind::keyword:
        return kPromptKeyword;
    default:
        // A cancel, or a value that wasn't asked for: an error would be asked again for ever.
        return kPromptCancelled;
    }
}

} // namespace

KdDbStub* orvex::entityOf(const PromptAnswer& answer) {
    if (answer.handle) {
        return entityOfHandle(*answer.handle);
    }
    const PromptSession& session = PromptSession::current();
    return session.finder == nullptr
               ? nullptr
               : session.finder->entityAt(userToWorld(answer.point), session.pickBox);
}

int kdedInitGet(int /*flags*/, const wchar_t* keywords) {
    PromptSession::current().armedKeywords = keywords != nullptr ? keywords : L"";
    return kPromptNormal;
}

int kdedGetInput(wchar_t* keyword) {
    if (keyword == nullptr) {
        return kPromptError;
    }
    putText(keyword, PromptSession::current().lastKeyword);
    return kPromptNormal;
}

int kdedGetKword(const wchar_t* prompt, wchar_t* keyword) {
    const PromptAnswer answer = orvex::askUser(PromptKind::keyword, prompt);
    if (answer.kind != PromptAnswer::Kind::keyword || keyword == nullptr) {
        return statusWithoutValue(answer);
    }
    putText(keyword, answer.keyword);
    return kPromptNormal;
}

int kdedEntSel(const wchar_t* prompt, long* name, double* point) {
    const PromptAnswer answer = orvex::askUser(PromptKind::entity, prompt);
    if (answer.kind != PromptAnswer::Kind::point) {
        return statusWithoutValue(answer);
    }
    KdDbStub* const found = pickedEntity(answer);
    if (found == nullptr || name == nullptr || point == nullptr) {
        PromptSession::current().errorNumber = kErrorNothingFound;
        return kPromptError;
    }
    kddbGetEntityName(name, KdDbObjectId(found));
    putPoint(point, answer.point);
    return kPromptNormal;
}

int kdedGetPoint(const double* base, const wchar_t* prompt, double* point) {
    std::optional<KdGePoint3d> start;
    if (base != nullptr) {
        start = orvex::userToWorld({base[0], base[1], base[2]});
    }
    const PromptAnswer answer = orvex::askUser(PromptKind::point, prompt, start);
    if (answer.kind != PromptAnswer::Kind::point || point == nullptr) {
        return statusWithoutValue(answer);
    }
    putPoint(point, answer.point);
    PromptSession::current().lastPoint = orvex::userToWorld(answer.point);
    return kPromptNormal;
}

int kdedGetReal(const wchar_t* prompt, double* value) {
    const PromptAnswer answer = orvex::askUser(PromptKind::real, prompt);
    if (answer.kind != PromptAnswer::Kind::number || value == nullptr) {
        return statusWithoutValue(answer);
    }
    *value = answer.number;
    return kPromptNormal;
}

int kdedGetString(const wchar_t* prompt, wchar_t* text) {
    const PromptAnswer answer = orvex::askUser(PromptKind::text, prompt);
    if (answer.kind != PromptAnswer::Kind::text || text == nullptr) {
        return statusWithoutValue(answer);
    }
    putText(text, answer.text);
    return kPromptNormal;
}
