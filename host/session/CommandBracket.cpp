#include "CommandBracket.h"

#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "PromptSession.h"
#include "SessionDisplay.h"
#include "resourceLibrary.h"

#include <utility>

namespace orvex {

CommandBracket::CommandBracket(std::wstring name, DatabaseCore& core, SessionDisplay& display,
                               ModuleLoader& modules)
    : m_core(core), m_display(display), m_use(modules), m_resources(AfxGetResourceHandle()) {
    PromptSession::current().armedKeywords.clear();
    m_core.changes().beginCommand(std::move(name));
}

CommandBracket::~CommandBracket() {
    m_core.closeAll();
    m_core.changes().endCommand();
    m_display.showAll();
    AfxSetResourceHandle(m_resources);
    PromptSession::current().armedKeywords.clear();
}

} // namespace orvex
