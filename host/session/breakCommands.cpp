// MLBREAK and MLCONNECT: two multilines of one, and one of two.

#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdDbEntity.h"
#include "KdDbStub.h"
#include "PickTrial.h"
#include "breakMline.h"
#include "editMlines.h"
#include "hostText.h"
#include "impossible.h"
#include "mlineEdits.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "userFrame.h"

namespace orvex {

namespace {

Result<MlineContent> connectedWith(const PickedMline& first, const KdDbStub& second,
                                   const MlineContent& content) {
    if (first.stub == &second) {
        return impossible(hostText("it was picked twice"));
    }
    return connected(*first.content, content);
}

// False for a cancel; an empty line leaves the point open.
bool askSecond(const KdGePoint3d& first, std::optional<KdGePoint3d>& second) {
    const KdGePoint3d base = worldToUser(first);
    const double from[3] = {base.x, base.y, base.z};
    double point[3] = {0.0, 0.0, 0.0};
    const int status =
        kdedGetPoint(from, wideHostText("Second point, Enter for none: ").c_str(), point);
    if (status == kPromptNormal) {
        second = userToWorld({point[0], point[1], point[2]});
    }
    return status == kPromptNormal || status == kPromptNone;
}

} // namespace

void breakCommand(Session& /*session*/) {
    const auto picked = pickMline(wideHostText("Multiline to break: ").c_str());
    const auto first = picked ? askPoint(wideHostText("Point: ").c_str()) : std::nullopt;
    std::optional<KdGePoint3d> second;
    if (!first || !askSecond(*first, second)) {
        return;
    }
    Result<std::vector<MlineContent>> parts = broken(*picked->content, *first, second);
    if (!parts) {
        tellRefusal(*picked->stub, parts.failure().text);
        return;
    }
    if (parts->size() > 1) {
        addMline(*picked->stub, std::move(parts->back()));
    }
    storeContent(*picked->stub, std::move(parts->front()));
}

void connectCommand(Session& /*session*/) {
    const auto first = pickMline(wideHostText("First multiline: ").c_str());
    if (!first) {
        return;
    }
    const PickTrialScope trial(
        [&first](KdDbStub& entity,
                 const KdGePoint3d& /*place*/) -> Result<std::unique_ptr<KdDbEntity>> {
            const auto content = contentOf(entity);
            if (content == nullptr || content->vertices.empty()) {
                return impossible(hostText("no multiline"));
            }
            Result<MlineContent> one = connectedWith(*first, entity, *content);
            if (!one) {
                return one.failure();
            }
            return freeMline(std::move(*one));
        });
    const auto second = pickMline(wideHostText("Second multiline: ").c_str());
    if (!second) {
        return;
    }
    Result<MlineContent> one = connectedWith(*first, *second->stub, *second->content);
    if (!one) {
        tellRefusal(*first->stub, one.failure().text);
        return;
    }
    one->traits = first->content->traits;
    storeContent(*first->stub, std::move(*one));
    second->stub->database->erase(*second->stub);
}

} // namespace orvex
