#include "frames.h"

#include "RvexDocContext.h"
#include "RvexView.h"
#include "coordinateFrames.h"
#include "promptStatus.h"

namespace {

constexpr short kWorld = 0;
constexpr short kUser = 1;

bool convert(const double* point, short from, short to, bool displacement, double* out) {
    resbuf source;
    source.restype = kResultShort;
    source.resval.rint = from;
    resbuf target;
    target.restype = kResultShort;
    target.resval.rint = to;
    return kdedTrans(point, &source, &target, displacement ? 1 : 0, out) == kPromptNormal;
}

} // namespace

bool wc2uc(const double* point, double* out, bool displacement) {
    return convert(point, kWorld, kUser, displacement, out);
}

bool uc2wc(const double* point, double* out, bool displacement) {
    return convert(point, kUser, kWorld, displacement, out);
}

RvexView* mledit::activeView() {
    RvexDocContext* const context = GetRvexAppCtxActiveDocContext();
    RvexDocDataContext* const data = context != nullptr ? context->rvexDocDataContext() : nullptr;
    RvexGraphics* const graphics = data != nullptr ? data->graphics() : nullptr;
    return graphics != nullptr ? graphics->activeView() : nullptr;
}

int tkl_wcs2dcs(const double* point, double* out) {
    const RvexView* const view = mledit::activeView();
    if (view == nullptr) {
        return -1;
    }
    view->worldToDisplay(point, out);
    out[2] = 0.0;
    return 0;
}

int tkl_ucs2rp(const double* /*point*/, double* /*out*/) {
    return 0;
}
