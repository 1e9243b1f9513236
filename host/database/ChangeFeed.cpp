#include "ChangeFeed.h"

#include "ChangeLog.h"
#include "DatabaseCore.h"

#include <utility>

namespace orvex {

ChangeFeed::ChangeFeed(DatabaseCore& core) : m_log(&core.changes()) {
    m_log->attach(*this);
}

ChangeFeed::~ChangeFeed() {
    if (m_log != nullptr) {
        m_log->detach(*this);
    }
}

std::vector<KdDbStub*> ChangeFeed::take() {
    for (KdDbStub* const stub : m_pending) {
        stub->pendingFeeds = static_cast<std::uint8_t>(stub->pendingFeeds & ~m_bit);
    }
    return std::exchange(m_pending, {});
}

} // namespace orvex
