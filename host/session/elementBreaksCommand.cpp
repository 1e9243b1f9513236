// MLSTOPS: sets the breaks of one element on one segment.

#include "HostCommand.h"
#include "commandOutput.h"
#include "elementBreaks.h"
#include "lockedLayers.h"
#include "mlineEdits.h"
#include "promptExchange.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "textCodec.h"

#include <cmath>
#include <limits>

namespace orvex {

namespace {

// Null when there is none to change, and then it has been told.
KdDbStub* askMline() {
    const PromptAnswer answer = askUser(PromptKind::selection, L"Multiline: ");
    if (answer.kind != PromptAnswer::Kind::point && answer.kind != PromptAnswer::Kind::handle) {
        return nullptr;
    }
    KdDbStub* const found = entityOf(answer);
    if (found == nullptr || contentOf(*found) == nullptr) {
        kdutPrintf(L"No multiline found there.");
        return nullptr;
    }
    if (isOnLockedLayer(*found)) {
        kdutPrintf(L"The multiline lies on a locked layer.");
        return nullptr;
    }
    return found;
}

// A whole number from 0 on; nothing when the user gives up.
std::optional<unsigned> askIndex(const wchar_t* prompt) {
    double number = 0.0;
    if (kdedGetReal(prompt, &number) != kPromptNormal) {
        return std::nullopt;
    }
    if (number < 0.0 || number > std::numeric_limits<int>::max() || std::trunc(number) != number) {
        rejectAnswer(L"that is no whole number from 0 on");
        return std::nullopt;
    }
    return static_cast<unsigned>(number);
}

std::optional<std::vector<double>> askDistances() {
    std::vector<double> distances;
    for (;;) {
        double distance = 0.0;
        switch (kdedGetReal(L"Next distance: ", &distance)) {
        case kPromptNormal:
            distances.push_back(distance);
            break;
        case kPromptNone:
            return distances;
        default:
            return std::nullopt;
        }
    }
}

} // namespace

void elementBreaksCommand(Session& /*session*/) {
    KdDbStub* const mline = askMline();
    if (mline == nullptr) {
        return;
    }
    const std::optional<unsigned> segment = askIndex(L"Segment: ");
    const std::optional<unsigned> element =
        segment ? askIndex(L"Element: ") : std::optional<unsigned>();
    const std::optional<std::vector<double>> distances =
        element ? askDistances() : std::optional<std::vector<double>>();
    if (!distances) {
        return;
    }
    Result<MlineContent> changed = withBreaks(*contentOf(*mline), *segment, *element, *distances);
    if (!changed) {
        kdutPrintf(L"%ls", widen("The breaks stay: " + changed.failure().text).c_str());
        return;
    }
    storeContent(*mline, std::move(*changed));
}

} // namespace orvex
