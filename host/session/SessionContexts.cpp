#include "SessionContexts.h"

#include "Session.h"

namespace orvex {

RvexView* SessionContexts::activeView() {
    return &m_session.view();
}

} // namespace orvex
