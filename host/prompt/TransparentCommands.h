#pragma once

#include "PromptSource.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvex {

// Commands that run in the middle of another one, typed with an apostrophe before their name: the
// question stays and is asked again after them. Implemented by the session.
class TransparentCommands {
public:
    virtual ~TransparentCommands() = default;

    // Runs one at a question. What it gives answers the question; without that it is asked again.
    virtual std::optional<PromptAnswer> run(const std::wstring& name,
                                            const PromptRequest& request) = 0;
    // What one that ran before has to say to a question that nobody else is asked then.
    virtual std::optional<PromptAnswer> answerAhead(const PromptRequest& request) = 0;
};

// The name in capitals of what a typed text like "'zoom" calls; nothing for any other text.
std::optional<std::wstring> transparentCommand(std::wstring_view typed);

} // namespace orvex
