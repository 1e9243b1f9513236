#pragma once

#include "PlanView.h"
#include "PromptSession.h"
#include "RvexDocContext.h"

namespace orvex {

// A view that nobody looks at: commands measure their picks by it.
class ScratchView final : public RvexDocContext,
                          public RvexDocDataContext,
                          public RvexGraphics,
                          public DisplayListener {
public:
    [[nodiscard]] PlanView& plan() { return m_plan; }

    RvexDocDataContext* rvexDocDataContext() override { return this; }
    RvexGraphics* graphics() override { return this; }
    RvexView* activeView() override { return &m_plan; }

    void showEntity(KdDbStub& /*entity*/) override {}
    void hideEntity(KdDbStub& /*entity*/) override {}
    void refresh() override {}
    [[nodiscard]] KdGePoint3d worldToDisplay(const KdGePoint3d& world) const override {
        return world;
    }
    [[nodiscard]] KdGePoint3d displayToWorld(const KdGePoint3d& display) const override {
        return display;
    }
    [[nodiscard]] KdGePoint3d viewCenter() const override {
        return {m_plan.center().x, m_plan.center().y, 0.0};
    }
    [[nodiscard]] double viewHeight() const override { return m_plan.viewHeight(); }
    void setViewCenter(const KdGePoint3d& center) override {
        m_plan.setView({center.x, center.y}, m_plan.viewHeight());
    }
    void setViewHeight(double height) override { m_plan.setView(m_plan.center(), height); }

private:
    PlanView m_plan{1600, 1200}; // pixels, as without a window
};

} // namespace orvex
