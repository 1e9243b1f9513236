#pragma once

#include "MlineContent.h"
#include "PlanView.h"
#include "PromptWatcher.h"
#include "toolKinds.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvex {

class Session;

// A pick that a tool has taken, with what the tool measured it by.
struct ToolPick {
    KdDbStub* mline = nullptr;
    KdGePoint3d point; // current user coordinate system
    PlanView view{1, 1};
    int pickBox = 0; // pixels to each side
};

// A pick that did nothing.
struct RefusedPick {
    PickRefusal reason = PickRefusal::nothingHere;
    const KdDbStub* entity = nullptr; // where one was found
    bool isTold = false;              // the command says so itself
};

// Follows a tool of the module through its prompts: which it is, what it asks for, what it has got,
// and whether it did anything with that. Between commands there is no tool.
class ToolWatch final : public PromptWatcher {
public:
    enum class Stage : std::uint8_t { none, first, second }; // the pick that is asked for

    explicit ToolWatch(Session& session) : m_session(session) {}

    // A tool that wasn't chosen at a prompt, by its keyword; one that isn't known is none.
    void chooseTool(std::wstring_view keyword);

    [[nodiscard]] const ToolKind* tool() const { return m_tool; }
    [[nodiscard]] Stage stage() const { return m_stage; }
    // Of the cycle at hand; nothing before the second pick is asked for.
    [[nodiscard]] const std::optional<ToolPick>& first() const { return m_first; }
    [[nodiscard]] bool isLastPick() const;
    // What a click at a point would be, where there is a multiline, measured in what is seen.
    [[nodiscard]] ToolPick pickAt(KdDbStub& mline, const KdGePoint3d& userPoint) const;

    // Told of each pick that did nothing, also of commands that are no tools, as soon as that is
    // known: before the next question at the latest.
    using Listener = std::function<void(const RefusedPick& refused)>;
    void setListener(Listener listener) { m_listener = std::move(listener); }

    void commandEnded();

    void asking(const PromptRequest& request) override;
    void answered(const PromptRequest& request, const PromptAnswer& answer) override;
    void picked(const PromptAnswer& answer, KdDbStub& entity) override;
    void missed(PickRefusal reason, KdDbStub* entity, bool isTold) override;
    void printed(const std::wstring& text) override;

private:
    // A multiline as it was before the tool worked on it.
    struct Before {
        KdDbStub* mline;
        std::shared_ptr<const MlineContent> content;
    };

    [[nodiscard]] static ToolPick pickIn(const PlanView& view, KdDbStub& mline,
                                         const KdGePoint3d& userPoint);
    void startCycle(const std::vector<KdDbStub*>& mlines);
    void endCycle();
    void refuse(PickRefusal reason, const KdDbStub* entity, bool isTold);

    Session& m_session;
    Listener m_listener;
    const ToolKind* m_tool = nullptr;
    Stage m_stage = Stage::none;
    std::wstring m_firstPrompt; // which the tool begins each of its cycles with
    std::optional<ToolPick> m_first;
    KdDbStub* m_lastPicked = nullptr;
    std::vector<Before> m_cycle; // of picks that are complete, until it is known what came of them
};

} // namespace orvex
