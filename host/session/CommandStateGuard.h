#pragma once

#include "HINSTANCE.h"
#include "PromptSession.h"

class KdDocument;
class RvexDocContext;

namespace orvex {

// What commands find one of in a process: the prompts with their variables and keywords, the
// current document, the view's context, the resource handle. All of it is at the end what it was at
// the beginning, whatever a command made of it, so that one command may run while another waits.
class CommandStateGuard {
public:
    CommandStateGuard();
    ~CommandStateGuard();
    CommandStateGuard(const CommandStateGuard&) = delete;
    CommandStateGuard& operator=(const CommandStateGuard&) = delete;

private:
    PromptSession m_prompts;
    KdDocument* m_document;
    RvexDocContext* m_context;
    HINSTANCE m_resources;
};

} // namespace orvex
