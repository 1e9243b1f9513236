#pragma once

#include "Failure.h"
#include "KdDbDatabase.h"
#include "KdDocument.h"
#include "PromptSession.h"
#include "ScratchView.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class KdDbMline;

namespace orvex {

class Scene;
class Session;
struct MlineContent;

// Copies of some multilines of a drawing, of their styles and of all variables, in a database of
// their own where commands of modules can be played without touching the drawing, also while a
// command waits at a prompt of the drawing. Copies have the handles of their originals. Prompts,
// PICKBOX and view are its own. Setting it up costs what the copied multilines cost.
class ScratchSession final : EntityFinder {
public:
    explicit ScratchSession(Session& session);
    ~ScratchSession() override;
    ScratchSession(const ScratchSession&) = delete;
    ScratchSession& operator=(const ScratchSession&) = delete;

    // The copy of a multiline; made at the first call. Null for what is no multiline.
    KdDbMline* copy(KdDbStub& original);
    // What the original would be with what its copy has come to: chain, lists and flags. Null for
    // what has no copy.
    [[nodiscard]] std::shared_ptr<const MlineContent> outcome(KdDbStub& original);
    // Gives the original what its copy has come to: chain, lists and flags. An original that is as
    // its copy isn't touched.
    void giveBack(KdDbStub& original);

    [[nodiscard]] DatabaseCore& core() { return m_database.core(); }
    [[nodiscard]] PlanView& view() { return m_view.plan(); }
    void setPickBox(int pixels) { m_prompts.pickBox = pixels; }

    // Runs a command of a module as one step of undo; answers come from the source.
    [[nodiscard]] std::optional<Failure> run(const std::wstring& command, PromptSource& source);
    // Takes the last command back that changed something; false when there is none.
    bool undo();

private:
    KdDbObjectId copyOfStyle(KdDbObjectId style);
    KdDbStub* entityAt(const KdGePoint3d& worldPoint, int pickBoxPixels) override;

    Session& m_session;
    KdDbDatabase m_database;
    KdDocument m_document;
    ScratchView m_view;
    PromptSession m_prompts;
    std::unique_ptr<Scene> m_scene; // made at the first pick that names no handle
    std::unordered_map<const KdDbStub*, KdDbStub*> m_copies; // of multilines and of styles
};

} // namespace orvex
