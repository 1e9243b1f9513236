#include "Session.h"

#include "ChangeLog.h"
#include "CommandBracket.h"
#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "ModuleLoader.h"
#include "commandOutput.h"
#include "hostFolders.h"
#include "hostText.h"
#include "kdrxRegistry.h"
#include "promptExchange.h"
#include "supportFiles.h"
#include "textCodec.h"

#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>
#include <new>
#include <string_view>
#include <utility>

namespace orvex {

namespace {

// Commands of modules that work by a dialog. How a command is registered is fixed and has no place
// for this, so that the host has to know their names.
constexpr std::array<std::wstring_view, 2> kWindowCommands{L"MLEDIT", L"MLSTYLE"};

bool needsWindow(const std::wstring& name) {
    return std::ranges::find(kWindowCommands, foldCase(name)) != kWindowCommands.end();
}

Failure unplayable(const std::wstring& text) {
    return {FailureCause::unplayableScript, {}, 0, narrow(text)};
}

Failure unloadable(const std::string& text) {
    return {FailureCause::unloadableModule, {}, 0, text};
}

const KdEdCommand* findRegistered(const std::wstring& name) {
    const auto* const stack =
        KdEdCommandStack::cast(kdrxSysRegistry()->at(L"RVEX_REGISTERED_COMMANDS"));
    return stack != nullptr ? stack->lookUp(name.c_str()) : nullptr;
}

} // namespace

Session::Session(SessionSetup setup, ModuleLoader& modules)
    : m_setup(std::move(setup)), m_modules(modules), m_document(&m_setup.drawing->database()),
      m_view(m_setup.viewWidth, m_setup.viewHeight), m_pickView(m_view),
      m_isSeen(m_setup.hasWindow), m_scene(m_setup.drawing->database()),
      m_stepMemory(m_selectionMemory), m_contexts(*this), m_display(*this), m_toolWatch(*this),
      m_transparent(*this), m_documentBefore(setCurrentDocument(&m_document)),
      m_contextBefore(setActiveDocContext(&m_contexts)) {
    setSupportFileFinder(findSupportFile);
    database().core().changes().steps().setCompanion(&m_stepMemory);
    m_scene.setUnitsPerPixel([this] { return pickView().unitsPerPixel(); });
    PromptSession& prompts = PromptSession::current();
    prompts = PromptSession();
    prompts.source = m_setup.source;
    prompts.finder = m_setup.finder != nullptr ? m_setup.finder : &m_scene;
    prompts.display = &m_display;
    prompts.watcher = &m_toolWatch;
    prompts.transparent = &m_transparent;
    prompts.record = m_setup.hasWindow ? &m_record : nullptr;
}

Session::~Session() {
    database().core().changes().steps().setCompanion(nullptr);
    PromptSession::current() = PromptSession();
    setActiveDocContext(m_contextBefore);
    setCurrentDocument(m_documentBefore);
}

PlanView& Session::view() {
    if (!m_viewStarted) {
        m_viewStarted = true;
        zoomToPlan();
    }
    return m_view;
}

PlanView& Session::pickView() {
    PlanView& seen = view();
    return m_isSeen ? m_pickView : seen;
}

void Session::setView(PlanPoint center, double height) {
    view().setView(center, height);
    pickView().setView(center, height);
}

PlanBox Session::planToSee() {
    constexpr PlanBox kSheet{{0.0, 0.0}, {420.0 * 50.0, 297.0 * 50.0}};
    const PlanBox extents = m_scene.extents();
    return m_isSeen && extents.isEmpty() ? kSheet : extents;
}

void Session::zoomToPlan() {
    view().zoomTo(planToSee());
    if (m_isSeen) {
        m_pickView.zoomTo(m_scene.extents());
    }
}

void Session::setSource(PromptSource* source) {
    m_setup.source = source;
    PromptSession::current().source = source;
}

std::wstring Session::askCommand() {
    const PromptAnswer answer = askUser(PromptKind::command, wideHostText("Command: ").c_str());
    return answer.kind == PromptAnswer::Kind::text ? answer.text : std::wstring();
}

std::optional<Failure> Session::run(const std::wstring& name) {
    if (m_running) {
        return unplayable(wideHostText("a command is running already"));
    }
    // A transparent one is like any other where nothing is asked.
    const std::wstring plain = transparentCommand(name).value_or(name);
    // Outside of the bracket, since they are no steps of their own.
    if (foldCase(plain) == L"U") {
        recordCommand(name);
        undo();
        return std::nullopt;
    }
    if (foldCase(plain) == L"REDO") {
        recordCommand(name);
        redo();
        return std::nullopt;
    }
    if (const HostCommand* const command = findHostCommand(plain)) {
        recordCommand(name);
        return runInBracket(name, [this, command] { command->run(*this); });
    }
    const auto command = findModuleCommand(name);
    if (!command) {
        return command.failure();
    }
    recordCommand(name);
    return runInBracket(name, *command);
}

void Session::recordCommand(const std::wstring& name) {
    m_record.begin(name, !needsWindow(name) && foldCase(name) != L"MLSTYLEINUSE");
}

Result<Session::CommandFunction> Session::findModuleCommand(const std::wstring& name) {
    const Failure withoutWindow = unplayable(
        m_isSeen ? wideHostText("a script can't answer the dialog of '%1'; of the editing tools, "
                                "it can play -MLEDIT",
                                {name})
                 : wideHostText("the command '%1' needs a window", {name}));
    if (needsWindow(name) && !m_setup.hasWindow) {
        return withoutWindow;
    }
    const KdEdCommand* command = findRegistered(name);
    if (command == nullptr) {
        if (const auto failure = loadModule()) {
            return *failure;
        }
        command = findRegistered(name);
    }
    if (command == nullptr) {
        return unplayable(wideHostText("there is no command '%1'", {name}));
    }
    // A translated name is checked once it is known which command it names.
    if (needsWindow(command->globalName) && !m_setup.hasWindow) {
        return withoutWindow;
    }
    return command->function;
}

std::optional<Failure> Session::runInBracket(const std::wstring& name,
                                             const std::function<void()>& command) {
    // The view starts with what was there before the first command.
    (void)view();
    m_running = true;
    std::optional<Failure> failure;
    const std::string what = hostText("the command '%1' failed", {narrow(name)});
    try {
        CommandBracket bracket(foldCase(name), database().core(), m_display, m_modules);
        command();
        runFollowers();
        m_record.end(bracket.end());
    } catch (const std::bad_alloc&) {
        failure = Failure{
            FailureCause::unplayableScript, {}, 0, what + ": " + hostText("not enough memory")};
    } catch (const std::exception& error) {
        failure = Failure{FailureCause::programFault, {}, 0, what + ": " + error.what()};
    } catch (...) {
        failure = Failure{FailureCause::programFault, {}, 0, what};
    }
    m_running = false;
    m_toolWatch.commandEnded();
    m_transparent.commandEnded();
    m_follower.clear();
    return failure;
}

void Session::runFollowers() {
    while (!m_follower.empty()) {
        const std::wstring name = std::exchange(m_follower, {});
        const auto command = findModuleCommand(name);
        if (!command) {
            return;
        }
        database().core().closeAll();
        PromptSession::current().armedKeywords.clear();
        (*command)();
    }
}

void Session::undo() {
    if (!database().core().changes().undo()) {
        kdutPrintf(L"%ls", wideHostText("There is nothing to undo.").c_str());
    }
}

void Session::redo() {
    if (!database().core().changes().redo()) {
        kdutPrintf(L"%ls", wideHostText("There is nothing to redo.").c_str());
    }
}

std::optional<Failure> Session::loadModule() {
    for (const std::string& file : m_setup.moduleFiles) {
        std::error_code error;
        if (std::filesystem::exists(file, error)) {
            // The script stands as the place of the failure; the text names the file.
            const auto failure = m_modules.load(file);
            return failure ? std::optional(unloadable(messageOf(*failure))) : std::nullopt;
        }
    }
    if (m_setup.moduleFiles.empty()) {
        return std::nullopt;
    }
    return unloadable(hostText("the module %1 can't be found", {m_setup.moduleFiles.front()}));
}

} // namespace orvex
