#include "HostCommand.h"
#include "Session.h"
#include "hostText.h"
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
    if (kdedGetPoint(nullptr, wideHostText("Center point: ").c_str(), center) != kPromptNormal ||
        kdedGetReal(wideHostText("Height of the view: ").c_str(), &height) != kPromptNormal) {
        return;
    }
    if (!(height > 0.0)) {
        rejectAnswer(wideHostText("the height of a view has to be above 0"));
        return;
    }
    const KdGePoint3d world = userToWorld({center[0], center[1], center[2]});
    session.setView({world.x, world.y}, height);
}

} // namespace

void zoomCommand(Session& session) {
    wchar_t keyword[kPromptTextSize] = L"";
    kdedInitGet(0, L"Extents Center");
    if (kdedGetKword(wideHostText("Extents or Center: ").c_str(), keyword) != kPromptNormal) {
        return;
    }
    if (std::wstring_view(keyword) == L"Extents") {
        session.zoomToPlan();
    } else {
        zoomToCenter(session);
    }
}

} // namespace orvex
