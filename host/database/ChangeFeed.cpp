#include "ChangeFeed.h"

#include "DatabaseCore.h"

#include <utility>

namespace orvex {

ChangeFeed::ChangeFeed(DatabaseCore& core) : m_core(&core) {
    core.attach(*this);
}

ChangeFeed::~ChangeFeed() {
    if (m_core != nullptr) {
        m_core->detach(*this);
    }
}

std::vector<KdDbStub*> ChangeFeed::take() {
    for (KdDbStub* const stub : m_pending) {
        stub->pendingFeeds = static_cast<std::uint8_t>(stub->pendingFeeds & ~m_bit);
    }
    return std::exchange(m_pending, {});
}

} // namespace orvex
