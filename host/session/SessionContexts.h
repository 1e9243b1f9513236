#pragma once

#include "RvexDocContext.h"

namespace orvex {

class Session;

// What a module asks for the active view: a document, its data, its graphics.
class SessionContexts final : public RvexDocContext, RvexDocDataContext, RvexGraphics {
public:
    explicit SessionContexts(Session& session) : m_session(session) {}

    RvexDocDataContext* rvexDocDataContext() override { return this; }
    RvexGraphics* graphics() override { return this; }
    RvexView* activeView() override;

private:
    Session& m_session;
};

} // namespace orvex
