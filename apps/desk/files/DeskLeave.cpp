#include "DeskLeave.h"

#include "CommandRunner.h"
#include "DeskFiles.h"
#include "DeskPrompts.h"

#include <utility>

namespace orvex {

void DeskLeave::then(std::function<void()> go) {
    if (m_files.opener().isOpening()) {
        return;
    }
    const PromptRequest* const request = m_prompts.request();
    if (request == nullptr) {
        m_runner.post([this, go = std::move(go)] {
            if (m_files.mayLeave()) {
                go();
            }
        });
        return;
    }
    // What the command keeps when it ends will be a change.
    const Leave answer = m_files.askLeave(request->keepsOnEscape);
    if (answer != Leave::stay) {
        m_runner.post([this, answer, go = std::move(go)] {
            if (answer == Leave::discard || m_files.save()) {
                go();
            }
        });
    }
}

} // namespace orvex
