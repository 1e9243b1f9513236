#pragma once

#include "HINSTANCE.h"
#include "ModuleLoader.h"

#include <string>

namespace orvex {

class DatabaseCore;
class SessionDisplay;

// What stands around every command, whatever way it ends: objects left open are closed, hidden ones
// shown, the resource handle and the keywords are as before, and all changes are one undo step.
class CommandBracket {
public:
    // The name is what undo calls the step.
    CommandBracket(std::wstring name, DatabaseCore& core, SessionDisplay& display,
                   ModuleLoader& modules);
    ~CommandBracket();
    CommandBracket(const CommandBracket&) = delete;
    CommandBracket& operator=(const CommandBracket&) = delete;

    // Makes the step. Throws std::bad_alloc where there is no memory for it; then there is none.
    // False when nothing changed.
    bool end();

private:
    DatabaseCore& m_core;
    SessionDisplay& m_display;
    ModuleLoader::Use m_use;
    HINSTANCE m_resources;
    bool m_isEnded = false;
};

} // namespace orvex
