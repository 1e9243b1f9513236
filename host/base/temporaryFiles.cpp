#include "temporaryFiles.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <climits>
#include <unistd.h>

namespace orvex {

namespace {

// A handler may look at a slot at any moment, also while it is being filled.
struct Slot {
    std::atomic<bool> isTaken = false;
    std::atomic<bool> isNoted = false;
    std::array<char, PATH_MAX> path{};
};
static_assert(std::atomic<bool>::is_always_lock_free);

std::array<Slot, 8> g_slots;

} // namespace

void TemporaryName::note(const std::string& path) {
    clear();
    if (path.size() >= PATH_MAX) {
        return;
    }
    for (std::size_t i = 0; i < g_slots.size(); ++i) {
        if (!g_slots[i].isTaken.exchange(true)) {
            m_slot = i;
            *std::ranges::copy(path, g_slots[i].path.begin()).out = '\0';
            g_slots[i].isNoted = true;
            return;
        }
    }
}

void TemporaryName::clear() {
    if (m_slot != kNone) {
        g_slots[m_slot].isNoted = false;
        g_slots[m_slot].isTaken = false;
        m_slot = kNone;
    }
}

void removeTemporaryFiles() {
    for (const Slot& slot : g_slots) {
        if (slot.isNoted) {
            unlink(slot.path.data());
        }
    }
}

HeldSignals::HeldSignals() {
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
        sigaddset(&held, signal);
    }
    pthread_sigmask(SIG_BLOCK, &held, &m_before);
}

HeldSignals::~HeldSignals() {
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

} // namespace orvex
