#pragma once

#include "PromptSession.h"

#include <functional>
#include <unordered_set>

namespace orvex {

class Session;

// What commands ask of the display, done on the session's scene and view. A window repaints when it
// is told so.
class SessionDisplay final : public DisplayListener {
public:
    explicit SessionDisplay(Session& session) : m_session(session) {}

    void showEntity(KdDbStub& entity) override;
    void hideEntity(KdDbStub& entity) override;
    void refresh() override;
    KdGePoint3d worldToDisplay(const KdGePoint3d& world) const override;
    KdGePoint3d displayToWorld(const KdGePoint3d& display) const override;
    KdGePoint3d viewCenter() const override;
    double viewHeight() const override;
    void setViewCenter(const KdGePoint3d& center) override;
    void setViewHeight(double height) override;

    // What a command has hidden and not shown again.
    void showAll();

    void setRepaint(std::function<void()> repaint) { m_repaint = std::move(repaint); }

private:
    void repaint();

    Session& m_session;
    std::unordered_set<KdDbStub*> m_hidden;
    std::function<void()> m_repaint;
};

} // namespace orvex
