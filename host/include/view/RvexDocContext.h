#pragma once

class RvexView;

// What a document shows itself with.
class RvexGraphics {
public:
    virtual ~RvexGraphics() = default;
    [[nodiscard]] virtual RvexView* activeView() = 0; // may be null; owned by the document
};

class RvexDocDataContext {
public:
    virtual ~RvexDocDataContext() = default;
    [[nodiscard]] virtual RvexGraphics* graphics() = 0; // null when there is none
};

class RvexDocContext {
public:
    virtual ~RvexDocContext() = default;
    [[nodiscard]] virtual RvexDocDataContext* rvexDocDataContext() = 0; // null when there is none
};

// The active document; null when there is none.
RvexDocContext* GetRvexAppCtxActiveDocContext();

namespace orvex {

// Makes a document the active one (null for none) and returns the one before. Not owned.
RvexDocContext* setActiveDocContext(RvexDocContext* context);

} // namespace orvex
