#pragma once

#include "TransparentCommands.h"

namespace orvex {

class Session;

// The commands that a session runs in the middle of others: 'ZOOM, which leaves LASTPOINT alone,
// and these two, for a question of
//
// | a command that offers Undo          | 'U is that answer                                      |
// | an editing tool, its first pick     | 'U takes the last cycle back, 'REDO brings it again;   |
// |                                     | where none is left, 'U cancels                         |
// | its second pick                     | 'U drops the first one                                 |
// | any other command                   | 'U cancels                                             |
//
// A tool's own keyword UNDO reaches one cycle back and may hit another multiline after a refused
// pick. So cycles are taken back by marks of the database, and wherever the tool may remember what
// isn't so any more, it begins anew, as part of the same step.
class TransparentRun final : public TransparentCommands {
public:
    explicit TransparentRun(Session& session) : m_session(session) {}

    std::optional<PromptAnswer> run(const std::wstring& name,
                                    const PromptRequest& request) override;
    std::optional<PromptAnswer> answerAhead(const PromptRequest& request) override;

    void commandEnded() { m_tool.clear(); }

private:
    std::optional<PromptAnswer> undo(const PromptRequest& request);
    std::optional<PromptAnswer> redo(const PromptRequest& request);
    std::optional<PromptAnswer> afterCycle(const PromptRequest& request);
    PromptAnswer beginToolAnew();

    Session& m_session;
    std::wstring m_tool; // that begins anew, by its keyword; empty for none
};

} // namespace orvex
