#include "Session.h"

#include "CommandBracket.h"
#include "DatabaseCore.h"
#include "HostCommand.h"
#include "KdEdCommandStack.h"
#include "KdRxDictionary.h"
#include "ModuleLoader.h"
#include "commandLine.h"
#include "hostFolders.h"
#include "kdrxRegistry.h"
#include "promptExchange.h"
#include "supportFiles.h"
#include "textCodec.h"

#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>

namespace orvex {

namespace {

// The module's commands that work by a dialog.
bool worksByDialog(const std::wstring& name) {
    static constexpr std::array<std::wstring_view, 2> kNames{L"MLEDIT", L"MLSTYLE"};
    return std::find(kNames.begin(), kNames.end(), foldCase(name)) != kNames.end();
}

const KdEdCommand* findRegistered(const std::wstring& name) {
    const auto* const stack =
        KdEdCommandStack::cast(kdrxSysRegistry()->at(L"RVEX_REGISTERED_COMMANDS"));
    return stack != nullptr ? stack->lookUp(name.c_str()) : nullptr;
}

} // namespace

Session::Session(SessionSetup setup, ModuleLoader& modules)
    : m_setup(std::move(setup)), m_modules(modules), m_document(&m_setup.drawing->database()),
      m_view(m_setup.viewWidth, m_setup.viewHeight), m_scene(m_setup.drawing->database()),
      m_contexts(*this), m_display(*this), m_documentBefore(setCurrentDocument(&m_document)),
      m_contextBefore(setActiveDocContext(&m_contexts)) {
    setSupportFileFinder(findSupportFile);
    m_scene.setUnitsPerPixel([this] { return view().unitsPerPixel(); });
    PromptSession& prompts = PromptSession::current();
    prompts = PromptSession();
    prompts.source = m_setup.source;
    prompts.finder = m_setup.finder != nullptr ? m_setup.finder : &m_scene;
    prompts.display = &m_display;
}

Session::~Session() {
    PromptSession::current() = PromptSession();
    setActiveDocContext(m_contextBefore);
    setCurrentDocument(m_documentBefore);
}

PlanView& Session::view() {
    if (!m_viewStarted) {
        m_viewStarted = true;
        m_view.zoomTo(m_scene.extents());
    }
    return m_view;
}

void Session::setSource(PromptSource* source) {
    m_setup.source = source;
    PromptSession::current().source = source;
}

std::wstring Session::askCommand() {
    const PromptAnswer answer = askUser(PromptKind::command, L"Command: ");
    return answer.kind == PromptAnswer::Kind::text ? answer.text : std::wstring();
}

Session::Result Session::run(const std::wstring& name) {
    if (m_running) {
        return {Outcome::busy, L"a command is running already"};
    }
    if (foldCase(name) == L"U") {
        return undo();
    }
    if (const HostCommand* const command = findHostCommand(name)) {
        return runInBracket(name, [this, command] { command->run(*this); });
    }
    const ModuleCommand command = findModuleCommand(name);
    return command.function != nullptr ? runInBracket(name, command.function) : command.refusal;
}

Session::ModuleCommand Session::findModuleCommand(const std::wstring& name) {
    const Result needsWindow{Outcome::needsWindow, L"the command '" + name + L"' needs a window"};
    if (worksByDialog(name) && !m_setup.hasWindow) {
        return {nullptr, needsWindow};
    }
    const KdEdCommand* command = findRegistered(name);
    if (command == nullptr) {
        if (const auto failure = loadModule()) {
            return {nullptr, {Outcome::moduleFailed, *failure}};
        }
        command = findRegistered(name);
    }
    if (command == nullptr) {
        return {nullptr, {Outcome::unknown, L"there is no command '" + name + L"'"}};
    }
    // A translated name is looked at once it is known whose it is.
    if (worksByDialog(command->globalName) && !m_setup.hasWindow) {
        return {nullptr, needsWindow};
    }
    return {command->function, {}};
}

Session::Result Session::runInBracket(const std::wstring& name,
                                      const std::function<void()>& command) {
    // The view starts with what was there before the first command.
    (void)view();
    m_running = true;
    Result result;
    try {
        const CommandBracket bracket(database().core(), m_display, m_modules);
        command();
    } catch (const std::exception& failure) {
        result = {Outcome::failed, L"the command '" + name + L"' failed: " + widen(failure.what())};
    } catch (...) {
        result = {Outcome::failed, L"the command '" + name + L"' failed"};
    }
    m_running = false;
    return result;
}

// Stands outside of the bracket, since it is no step of its own.
Session::Result Session::undo() {
    if (!database().core().undo()) {
        kdutPrintf(L"There is nothing to undo.");
    }
    return {};
}

// Nothing when it went well, else why not.
std::optional<std::wstring> Session::loadModule() {
    for (const std::string& file : m_setup.moduleFiles) {
        std::error_code error;
        if (std::filesystem::exists(file, error)) {
            const auto failure = m_modules.load(file);
            return failure ? std::optional(widen(*failure)) : std::nullopt;
        }
    }
    if (m_setup.moduleFiles.empty()) {
        return std::nullopt;
    }
    return L"the module " + widen(m_setup.moduleFiles.front()) + L" can't be found";
}

} // namespace orvex
