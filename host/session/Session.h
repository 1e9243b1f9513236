#pragma once

#include "DrawingFile.h"
#include "Failure.h"
#include "JoinReport.h"
#include "KdDocument.h"
#include "PlanView.h"
#include "Scene.h"
#include "ScriptRecord.h"
#include "SelectionMemory.h"
#include "SessionContexts.h"
#include "SessionDisplay.h"
#include "SnapMemory.h"
#include "StepMemory.h"
#include "ToolWatch.h"
#include "TransparentRun.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvex {

class ModuleLoader;
class PromptSource;

// What a session is given. Nothing of it is owned but the drawing.
struct SessionSetup {
    std::unique_ptr<DrawingFile> drawing; // never null
    PromptSource* source = nullptr;       // who answers prompts; may be set later
    EntityFinder* finder = nullptr;       // null: the session's own scene
    bool hasWindow = false;               // commands with dialogs may run
    int viewWidth = 1600;                 // pixels, of what picks are measured in
    int viewHeight = 1200;
    std::vector<std::string> moduleFiles; // where the module may be, UTF-8, in order
};

// An open drawing with its view, its prompts and the commands that can be typed. There is one at a
// time: while it lives, its document is the current one.
class Session {
public:
    Session(SessionSetup setup, ModuleLoader& modules);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    [[nodiscard]] DrawingFile& drawing() { return *m_setup.drawing; }
    [[nodiscard]] KdDbDatabase& database() { return m_setup.drawing->database(); }
    [[nodiscard]] Scene& scene() { return m_scene; }
    // Starts at the extents that the drawing has when the view is first needed, which is before
    // the first command at the latest.
    [[nodiscard]] PlanView& view();
    // What commands measure picks in. Without a window that is the view; with one it is the view
    // that a script has, which a window's user can't see and moves by what he types, as a script
    // does. So picks that are played again find the same.
    [[nodiscard]] PlanView& pickView();
    // What a view of the whole plan is to show; of an empty drawing a window has room for a house,
    // millimetres on a sheet of 420 by 297 at 1 to 50.
    [[nodiscard]] PlanBox planToSee();
    // Both views. A height that isn't finite and above 0 changes nothing.
    void setView(PlanPoint center, double height);
    void zoomToPlan();
    // Whether it has been. A window looks at the drawing in steps first.
    [[nodiscard]] bool isViewStarted() const { return m_viewStarted; }
    [[nodiscard]] SessionDisplay& display() { return m_display; }

    // What was selected, for the commands that ask for a selection.
    [[nodiscard]] SelectionMemory& selectionMemory() { return m_selectionMemory; }
    [[nodiscard]] SnapMemory& snapMemory() { return m_snapMemory; }

    // What is known of the editing tool that runs.
    [[nodiscard]] ToolWatch& toolWatch() { return m_toolWatch; }

    void setSource(PromptSource* source);
    [[nodiscard]] PromptSource* source() const { return m_setup.source; }
    // Whether commands with dialogs may run; false while a script plays.
    void setHasWindow(bool hasWindow) { m_setup.hasWindow = hasWindow; }
    [[nodiscard]] bool hasWindow() const { return m_setup.hasWindow; }

    // Asks the source for a command's name; empty for an empty line or a cancel.
    [[nodiscard]] std::wstring askCommand();

    // Runs a command to its end within the bracket that all commands share. Causes of a failure:
    // unplayableScript (no such command, also after the module was loaded; the command needs a
    // window; another command runs; no memory), unloadableModule, programFault (the command ended
    // by an exception).
    std::optional<Failure> run(const std::wstring& name);

    // What was done so far, as a script; only with a window.
    [[nodiscard]] ScriptRecord& record() { return m_record; }

    // Has a command of a module run after the running one, as part of it: both are one step of
    // undo.
    void followWith(const std::wstring& name) { m_follower = name; }

    using CommandFunction = void (*)();
    // A command of a module, which is loaded where it has to be.
    Result<CommandFunction> findModuleCommand(const std::wstring& name);
    [[nodiscard]] ModuleLoader& modules() { return m_modules; }

    // Told of the places of a plan by whatever joins it; a window shows them. Null for none.
    void setJoinWatcher(JoinWatcher watcher) { m_joinWatcher = std::move(watcher); }
    [[nodiscard]] const JoinWatcher& joinWatcher() const { return m_joinWatcher; }

    [[nodiscard]] bool isRunning() const { return m_running; }

private:
    std::optional<Failure> runInBracket(const std::wstring& name,
                                        const std::function<void()>& command);
    void recordCommand(const std::wstring& name);
    void runFollowers();
    void undo();
    void redo();
    std::optional<Failure> loadModule();

    SessionSetup m_setup;
    ModuleLoader& m_modules;
    KdDocument m_document;
    PlanView m_view;
    PlanView m_pickView; // with a window
    bool m_isSeen;       // the view is a window's
    bool m_viewStarted = false;
    Scene m_scene;
    SelectionMemory m_selectionMemory;
    SnapMemory m_snapMemory;
    StepMemory m_stepMemory;
    SessionContexts m_contexts;
    SessionDisplay m_display;
    ToolWatch m_toolWatch;
    TransparentRun m_transparent;
    ScriptRecord m_record;
    bool m_running = false;
    std::wstring m_follower; // empty for none
    JoinWatcher m_joinWatcher;
    KdDocument* m_documentBefore;
    RvexDocContext* m_contextBefore;
};

} // namespace orvex
