#pragma once

#include "PickRefusal.h"
#include "PromptSource.h"

#include <string>

struct KdDbStub;

namespace orvex {

// Sees what commands ask, what they get and what they say, so that the host can tell users more
// than a command does. Implemented by the session.
class PromptWatcher {
public:
    virtual ~PromptWatcher() = default;

    // Before anybody is asked, and with the answer as the command gets it.
    virtual void asking(const PromptRequest& request) = 0;
    virtual void answered(const PromptRequest& request, const PromptAnswer& answer) = 0;
    // A pick found an entity that the command may change.
    virtual void picked(const PromptAnswer& answer, KdDbStub& entity) = 0;
    // A pick came to nothing; null for no entity. `isTold`: the command says so itself.
    virtual void missed(PickRefusal reason, KdDbStub* entity, bool isTold) = 0;
    // A command's own words.
    virtual void printed(const std::wstring& text) = 0;
};

} // namespace orvex
