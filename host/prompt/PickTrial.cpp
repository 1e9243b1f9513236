#include "PickTrial.h"

#include <utility>

namespace orvex {

namespace {

PickTrial& currentTrial() {
    static PickTrial trial;
    return trial;
}

} // namespace

PickTrialScope::PickTrialScope(PickTrial trial) {
    currentTrial() = std::move(trial);
}

PickTrialScope::~PickTrialScope() {
    currentTrial() = nullptr;
}

const PickTrial& PickTrialScope::current() {
    return currentTrial();
}

} // namespace orvex
