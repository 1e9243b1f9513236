// The command MLJOIN: joins the plan, or the multilines chosen, where they meet.

#include "DatabaseCore.h"
#include "HostCommand.h"
#include "JoinRun.h"
#include "Session.h"
#include "commandOutput.h"
#include "hostText.h"
#include "joinMlines.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "selection.h"
#include "textCodec.h"

#include <algorithm>
#include <array>
#include <string>

namespace orvex {

namespace {

constexpr std::array kKinds{L"Closed", L"Open", L"Merged", L"None"}; // in the order of JoinKind

// A keyword's place in a list of keywords; nothing for an empty line or a cancel.
template <std::size_t Count>
std::optional<std::size_t> askWord(const wchar_t* prompt,
                                   const std::array<const wchar_t*, Count>& words) {
    std::wstring list;
    for (const wchar_t* const word : words) {
        list += (list.empty() ? L"" : L" ") + std::wstring(word);
    }
    wchar_t answer[kPromptTextSize] = L"";
    kdedInitGet(0, list.c_str());
    if (kdedGetKword(prompt, answer) != kPromptNormal) {
        return std::nullopt;
    }
    const auto found = std::find(words.begin(), words.end(), std::wstring(answer));
    return static_cast<std::size_t>(found - words.begin());
}

void askKind(const wchar_t* prompt, JoinKind& kind) {
    if (const auto word = askWord(prompt, kKinds)) {
        kind = static_cast<JoinKind>(*word);
    }
}

void askTolerance(JoinOptions& options) {
    double tolerance = 0.0;
    kdedInitGet(0, L"Automatic");
    const int status =
        kdedGetReal(wideHostText("Tolerance in drawing units or Automatic: ").c_str(), &tolerance);
    if (status == kPromptKeyword) {
        options.tolerance.reset();
    }
    if (status != kPromptNormal) {
        return;
    }
    if (tolerance >= 0.0) {
        options.tolerance = tolerance;
    } else {
        rejectAnswer(wideHostText("a tolerance is 0 or more"));
    }
}

// Asks for one option. False when there is nothing more to ask; `go` tells whether to join.
bool askOption(JoinOptions& options, bool& go) {
    wchar_t answer[kPromptTextSize] = L"";
    kdedInitGet(0, L"Tolerance Cross Tee COrners");
    const int status = kdedGetKword(
        wideHostText("Tolerance, Cross, Tee or COrners, Enter to join: ").c_str(), answer);
    go = status == kPromptNone;
    if (status != kPromptNormal) {
        return false;
    }
    const std::wstring option = answer;
    if (option == L"Tolerance") {
        askTolerance(options);
    } else if (option == L"Cross") {
        askKind(wideHostText("Crosses Closed, Open, Merged or None: ").c_str(), options.cross);
    } else if (option == L"Tee") {
        askKind(wideHostText("Tees Closed, Open, Merged or None: ").c_str(), options.tee);
    } else if (const auto word = askWord(wideHostText("Corners Yes or No: ").c_str(),
                                         std::array{L"Yes", L"No"})) {
        options.corners = *word == 0;
    }
    return true;
}

void print(const std::string& text) {
    kdutPrintf(L"%ls", widen(text + '\n').c_str());
}

void printOutcome(const JoinReport& report) {
    std::size_t joined = 0;
    std::size_t left = 0;
    for (const JoinPlace& place : report.places) {
        joined += place.result == PlaceResult::joined ? 1 : 0;
        if (place.result == PlaceResult::left) {
            ++left;
            print(joinPlaceText(place, report.walls));
        }
    }
    print(hostText("%1 joined, %2 left.", {std::to_string(joined), std::to_string(left)}));
}

// Shows what the options would join, where somebody looks.
void lookAhead(Session& session, const std::vector<KdDbStub*>& mlines, const JoinOptions& options) {
    if (const JoinWatcher& watcher = session.joinWatcher()) {
        watcher(JoinRun(session, mlines, options).report());
    }
}

} // namespace

void joinCommand(Session& session) {
    const auto selection = askSelection(session, SelectionKind::mlines, true);
    if (!selection || (selection->entities.empty() && !selection->isEmptyAnswer)) {
        return;
    }
    DatabaseCore& core = session.database().core();
    const std::vector<KdDbStub*> mlines =
        (selection->isEmptyAnswer ? mlinesToJoin(core, std::vector<std::wstring>())
                                  : mlinesToJoin(core, selection->entities))
            .mlines;
    JoinOptions options;
    bool go = false;
    do {
        lookAhead(session, mlines, options);
    } while (askOption(options, go));
    if (!go) {
        return;
    }
    JoinRun join(session, mlines, options);
    if (const auto failure = join.play()) {
        rejectAnswer(widen(failure->text));
        return;
    }
    join.giveBack();
    const JoinReport report = join.report();
    printOutcome(report);
    if (const JoinWatcher& watcher = session.joinWatcher()) {
        watcher(report);
    }
}

} // namespace orvex
