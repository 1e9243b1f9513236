#include "RvexDocContext.h"

#include <utility>

namespace {

RvexDocContext* activeContext = nullptr;

} // namespace

RvexDocContext* GetRvexAppCtxActiveDocContext() {
    return activeContext;
}

namespace orvex {

RvexDocContext* setActiveDocContext(RvexDocContext* context) {
    return std::exchange(activeContext, context);
}

} // namespace orvex
