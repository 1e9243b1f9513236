#include "PromptSession.h"

namespace orvex {

PromptSession& PromptSession::current() {
    static PromptSession session;
    return session;
}

} // namespace orvex
