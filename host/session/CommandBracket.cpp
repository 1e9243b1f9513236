#include "CommandBracket.h"

#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "PromptSession.h"
#include "SessionDisplay.h"
#include "resourceLibrary.h"

#include <new>
#include <utility>

namespace orvex {

CommandBracket::CommandBracket(std::wstring name, DatabaseCore& core, SessionDisplay& display,
                               ModuleLoader& modules)
    : m_core(core), m_display(display), m_use(modules), m_resources(AfxGetResourceHandle()) {
    PromptSession::current().armedKeywords.clear();
    m_core.changes().beginCommand(std::move(name));
}

bool CommandBracket::end() {
    if (m_isEnded) {
        return false;
    }
    m_isEnded = true;
    m_core.closeAll();
    return m_core.changes().endCommand();
}

CommandBracket::~CommandBracket() {
    try {
        end();
        m_display.showAll();
    } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch)
        // The command has failed already, mostly for the same reason.
    }
    AfxSetResourceHandle(m_resources);
    PromptSession::current().armedKeywords.clear();
}

} // namespace orvex
