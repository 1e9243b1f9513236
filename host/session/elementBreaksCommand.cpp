// MLSTOPS: sets the breaks of one element on one segment.

#include "HostCommand.h"
#include "commandOutput.h"
#include "editMlines.h"
#include "elementBreaks.h"
#include "hostText.h"
#include "mlineEdits.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "textCodec.h"

#include <cmath>
#include <limits>

namespace orvex {

namespace {

std::optional<std::vector<double>> askDistances() {
    std::vector<double> distances;
    for (;;) {
        double distance = 0.0;
        switch (kdedGetReal(wideHostText("Next distance: ").c_str(), &distance)) {
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
    const std::optional<NamedMline> mline = askMlineToChange(wideHostText("Multiline: ").c_str());
    if (!mline) {
        return;
    }
    const std::optional<unsigned> segment = askIndex(wideHostText("Segment: ").c_str());
    const std::optional<unsigned> element =
        segment ? askIndex(wideHostText("Element: ").c_str()) : std::optional<unsigned>();
    const std::optional<std::vector<double>> distances =
        element ? askDistances() : std::optional<std::vector<double>>();
    if (!distances) {
        return;
    }
    Result<MlineContent> changed = withBreaks(*mline->content, *segment, *element, *distances);
    if (!changed) {
        kdutPrintf(L"%ls",
                   widen(hostText("The breaks stay: %1", {changed.failure().text})).c_str());
        return;
    }
    storeContent(*mline->stub, std::move(*changed));
}

} // namespace orvex
