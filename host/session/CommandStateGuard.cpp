#include "CommandStateGuard.h"

#include "KdDocument.h"
#include "RvexDocContext.h"
#include "resourceLibrary.h"

#include <utility>

namespace orvex {

CommandStateGuard::CommandStateGuard()
    : m_prompts(PromptSession::current()), m_document(curDoc()),
      m_context(GetRvexAppCtxActiveDocContext()), m_resources(AfxGetResourceHandle()) {}

CommandStateGuard::~CommandStateGuard() {
    AfxSetResourceHandle(m_resources);
    setActiveDocContext(m_context);
    setCurrentDocument(m_document);
    PromptSession::current() = std::move(m_prompts);
}

} // namespace orvex
