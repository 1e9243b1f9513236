#include "HandleIndex.h"

#include "KdDbStub.h"

#include <algorithm>
#include <iterator>

namespace orvex {

namespace {

bool makesRoom(const KdDbStub& bearer) {
    return bearer.erased && bearer.record == kNoRecord;
}

} // namespace

KdDbStub* HandleIndex::find(std::deque<KdDbStub>& stubs, std::uint64_t handle) {
    if (m_taken == 0) {
        build(stubs);
    }
    for (; m_taken < stubs.size(); ++m_taken) {
        add(stubs[m_taken]);
    }
    KdDbStub** const found = place(handle);
    return found != nullptr ? *found : nullptr;
}

void HandleIndex::noteHandle(KdDbStub& stub) {
    if (stub.ordinal < m_taken) {
        add(stub);
    }
}

KdDbStub** HandleIndex::place(std::uint64_t handle) {
    const auto entry =
        std::lower_bound(m_sorted.begin(), m_sorted.end(), handle,
                         [](const Entry& each, std::uint64_t h) { return each.handle < h; });
    if (entry != m_sorted.end() && entry->handle == handle) {
        return &entry->stub;
    }
    const auto other = m_rest.find(handle);
    return other != m_rest.end() ? &other->second : nullptr;
}

void HandleIndex::add(KdDbStub& stub) {
    if (stub.handle == 0) {
        return;
    }
    if (m_sorted.empty() || m_sorted.back().handle < stub.handle) {
        m_sorted.push_back({stub.handle, &stub});
    } else if (KdDbStub** const known = place(stub.handle)) {
        if (makesRoom(**known)) {
            *known = &stub;
        }
    } else {
        m_rest.emplace(stub.handle, &stub);
    }
}

void HandleIndex::build(std::deque<KdDbStub>& stubs) {
    m_sorted.reserve(stubs.size());
    for (KdDbStub& stub : stubs) {
        if (stub.handle != 0) {
            m_sorted.push_back({stub.handle, &stub});
        }
    }
    m_taken = stubs.size();
    const auto isBelow = [](const Entry& a, const Entry& b) { return a.handle < b.handle; };
    if (!std::is_sorted(m_sorted.begin(), m_sorted.end(), isBelow)) {
        std::stable_sort(m_sorted.begin(), m_sorted.end(), isBelow);
    }
    // Of each handle the first that makes no room, else the first.
    auto kept = m_sorted.begin();
    for (const Entry& each : m_sorted) {
        const bool isNew = kept == m_sorted.begin() || std::prev(kept)->handle != each.handle;
        if (isNew) {
            *kept++ = each;
        } else if (makesRoom(*std::prev(kept)->stub) && !each.stub->erased) {
            *std::prev(kept) = each;
        }
    }
    m_sorted.erase(kept, m_sorted.end());
}

} // namespace orvex
