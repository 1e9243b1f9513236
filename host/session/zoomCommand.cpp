#include "HostCommand.h"
#include "Session.h"
#include "promptLibrary.h"
#include "promptStatus.h"
#include "userFrame.h"

#include <cmath>
#include <string_view>

namespace orvex {

namespace {

void zoomToCenter(Session& session) {
    double center[3] = {0.0, 0.0, 0.0};
    double height = 0.0;
    if (kdedGetPoint(nullptr, L"Center point: ", center) != kPromptNormal ||
        kdedGetReal(L"Height of the view: ", &height) != kPromptNormal) {
        return;
    }
    if (!(height > 0.0)) {
        rejectAnswer(L"the height of a view has to be above 0");
        return;
    }
    const KdGePoint3d world = userToWorld({center[0], center[1], center[2]});
    session.setView({world.x, world.y}, height);
}

} // namespace

void zoomCommand(Session& session) {
    wchar_t keyword[kPromptTextSize] = L"";
    kdedInitGet(0, L"Extents Center");
    if (kdedGetKword(L"Extents or Center: ", keyword) != kPromptNormal) {
        return;
    }
    if (std::wstring_view(keyword) == L"Extents") {
        session.zoomToPlan();
    } else {
        zoomToCenter(session);
    }
}

} // namespace orvex
