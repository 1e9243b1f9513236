// EXTEND and TRIM: bring ends of multilines to another one without joining them.

#include "HostCommand.h"
#include "KdDbStub.h"
#include "editMlines.h"
#include "endAtBar.h"
#include "mlineEdits.h"
#include "promptLibrary.h"
#include "promptStatus.h"

#include <string_view>

namespace orvex {

namespace {

MlineEnd endNear(const MlineContent& mline, const KdGePoint3d& place) {
    const bool isStart = (place - mline.vertices.front().position).length() <=
                         (place - mline.vertices.back().position).length();
    return isStart ? MlineEnd::start : MlineEnd::end;
}

void bringEnds(EndChange change) {
    const auto bar = pickMline(L"Multiline to end at: ");
    if (!bar) {
        return;
    }
    wchar_t word[kPromptTextSize] = L"";
    kdedInitGet(0, L"Axis Outer");
    if (kdedGetKword(L"To its [Axis/Outer]: ", word) != kPromptNormal) {
        return;
    }
    const BarLine line = std::wstring_view(word) == L"Axis" ? BarLine::axis : BarLine::outer;
    const wchar_t* const prompt = change == EndChange::extend
                                      ? L"Pick near an end to extend, Enter to stop: "
                                      : L"Pick near an end to trim, Enter to stop: ";
    for (;;) {
        const auto picked = pickMline(prompt);
        if (!picked) {
            if (hasMissed()) {
                continue;
            }
            return;
        }
        if (picked->stub == bar->stub) {
            tellRefusal(*picked->stub, "it is what the others are to end at");
            continue;
        }
        Result<MlineContent> moved =
            endAtBar(*picked->content, endNear(*picked->content, picked->place), *bar->content,
                     line, change);
        if (moved) {
            storeContent(*picked->stub, std::move(*moved));
        } else {
            tellRefusal(*picked->stub, moved.failure().text);
        }
    }
}

} // namespace

void extendCommand(Session& /*session*/) {
    bringEnds(EndChange::extend);
}

void trimCommand(Session& /*session*/) {
    bringEnds(EndChange::trim);
}

} // namespace orvex
