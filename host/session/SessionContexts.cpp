#include "SessionContexts.h"

#include "Session.h"

namespace orvex {

RvexView* SessionContexts::activeView() {
    return &m_session.pickView();
}

} // namespace orvex
