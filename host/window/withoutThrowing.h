#pragma once

#include "crashRecorder.h"

namespace orvex {

// Calls a logic out of one of Qt's own functions, which nothing thrown may pass.
template <class Function>
void withoutThrowing(Function&& function) noexcept {
    try {
        function();
    } catch (...) {
        reportBadAccess(L"Exception in a dialog's handler");
    }
}

} // namespace orvex
