// MLEND: moves an open end of a multiline along its own segment.

#include "HostCommand.h"
#include "breakLists.h"
#include "commandOutput.h"
#include "hostText.h"
#include "kddbObjects.h"
#include "mlineEdits.h"
#include "moveEnd.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "textCodec.h"
#include "userFrame.h"

#include <cmath>

namespace orvex {

namespace {

struct PickedEnd {
    KdDbStub* mline = nullptr;
    std::shared_ptr<const MlineContent> content; // null when no multiline was picked
    KdGePoint3d place;                           // world
};

PickedEnd askEnd() {
    long name[2] = {0, 0};
    double point[3] = {0.0, 0.0, 0.0};
    const int status =
        kdedEntSel(wideHostText("Pick a multiline near the end to move: ").c_str(), name, point);
    PickedEnd picked;
    if (status != kPromptNormal) {
        if (status == kPromptError) {
            kdutPrintf(L"%ls", wideHostText("Nothing found there.").c_str());
        }
        return picked;
    }
    KdDbObjectId id;
    kddbGetObjectId(id, name);
    picked.mline = id.stub();
    picked.content = picked.mline != nullptr ? contentOf(*picked.mline) : nullptr;
    picked.place = userToWorld({point[0], point[1], point[2]});
    if (picked.content == nullptr || picked.content->vertices.empty()) {
        picked.content = nullptr;
        kdutPrintf(L"%ls", wideHostText("That isn't a multiline with ends.").c_str());
    }
    return picked;
}

double planDistance(const KdGePoint3d& a, const KdGePoint3d& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

} // namespace

void moveEndCommand(Session& /*session*/) {
    const PickedEnd picked = askEnd();
    if (picked.content == nullptr) {
        return;
    }
    const std::vector<ChainVertex>& vertices = picked.content->vertices;
    const bool isStart = planDistance(picked.place, vertices.front().position) <=
                         planDistance(picked.place, vertices.back().position);
    const KdGePoint3d base =
        worldToUser(isStart ? vertices.front().position : vertices.back().position);
    const double from[3] = {base.x, base.y, base.z};
    double point[3] = {0.0, 0.0, 0.0};
    if (kdedGetPoint(from, wideHostText("New point: ").c_str(), point) != kPromptNormal) {
        return;
    }
    const auto contradiction = gapContradiction(*picked.content);
    Result<MlineContent> moved =
        contradiction ? Result<MlineContent>(*contradiction)
                      : moveEnd(*picked.content, isStart ? MlineEnd::start : MlineEnd::end,
                                userToWorld({point[0], point[1], point[2]}));
    if (!moved) {
        kdutPrintf(L"%ls", widen(hostText("The end stays: %1", {moved.failure().text})).c_str());
        return;
    }
    storeContent(*picked.mline, std::move(*moved));
}

} // namespace orvex
