// EXTEND and TRIM: bring ends of multilines to another one without joining them.

#include "HostCommand.h"
#include "KdDbEntity.h"
#include "KdDbStub.h"
#include "PickTrial.h"
#include "editMlines.h"
#include "endAtBar.h"
#include "hostText.h"
#include "impossible.h"
#include "lockedLayers.h"
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

struct Bar {
    KdDbStub* stub = nullptr;
    std::shared_ptr<const MlineContent> content;
    BarLine line = BarLine::axis;
};

Result<MlineContent> ended(const KdDbStub& stub, const MlineContent& mline,
                           const KdGePoint3d& place, const Bar& bar, EndChange change) {
    if (&stub == bar.stub) {
        return impossible(hostText("it is what the others are to end at"));
    }
    return endAtBar(mline, endNear(mline, place), *bar.content, bar.line, change);
}

PickTrial trialOf(const Bar& bar, EndChange change) {
    return [&bar, change](KdDbStub& entity,
                          const KdGePoint3d& place) -> Result<std::unique_ptr<KdDbEntity>> {
        const auto content = contentOf(entity);
        if (content == nullptr || content->vertices.empty()) {
            return impossible(hostText("no multiline"));
        }
        if (isOnLockedLayer(entity)) {
            return impossible(hostText("on a locked layer"));
        }
        Result<MlineContent> result = ended(entity, *content, place, bar, change);
        if (!result) {
            return result.failure();
        }
        return freeMline(std::move(*result));
    };
}

void bringEnds(EndChange change) {
    const auto pickedBar = pickMline(wideHostText("Multiline to end at: ").c_str());
    if (!pickedBar) {
        return;
    }
    wchar_t word[kPromptTextSize] = L"";
    kdedInitGet(0, L"Axis Outer");
    if (kdedGetKword(wideHostText("To its [Axis/Outer]: ").c_str(), word) != kPromptNormal) {
        return;
    }
    const Bar bar{pickedBar->stub, pickedBar->content,
                  std::wstring_view(word) == L"Axis" ? BarLine::axis : BarLine::outer};
    const std::wstring prompt = change == EndChange::extend
                                    ? wideHostText("Pick near an end to extend, Enter to stop: ")
                                    : wideHostText("Pick near an end to trim, Enter to stop: ");
    const PickTrialScope trial(trialOf(bar, change));
    for (;;) {
        const auto picked = pickMline(prompt.c_str());
        if (!picked) {
            if (hasMissed()) {
                continue;
            }
            return;
        }
        Result<MlineContent> moved =
            ended(*picked->stub, *picked->content, picked->place, bar, change);
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
