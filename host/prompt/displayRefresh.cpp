#include "displayRefresh.h"

#include "PromptSession.h"
#include "kddbObjects.h"
#include "promptStatus.h"

int kdedRedraw(const long* name, int mode) {
    constexpr int kShow = 1;
    constexpr int kHide = 2;
    constexpr int kRefresh = 4;

    orvex::DisplayListener* const display = orvex::PromptSession::current().display;
    if (display == nullptr) {
        return kPromptNormal;
    }
    if (name == nullptr) {
        if (mode == kRefresh) {
            display->refresh();
        }
        return kPromptNormal;
    }
    KdDbObjectId id;
    kddbGetObjectId(id, name);
    if (id.isNull()) {
        return kPromptError;
    }
    if (mode == kShow) {
        display->showEntity(*id.stub());
    } else if (mode == kHide) {
        display->hideEntity(*id.stub());
    }
    return kPromptNormal;
}
