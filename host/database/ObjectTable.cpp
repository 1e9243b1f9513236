#include "ObjectTable.h"

#include "ChangeLog.h"
#include "DatabaseCore.h"

#include <algorithm>
#include <limits>

namespace orvex {

namespace {

constexpr auto kLastHandle = std::numeric_limits<std::uint64_t>::max();

} // namespace

KdDbStub& ObjectTable::makeStub(ObjectKind kind, std::uint64_t handle, KdDbStub* owner) {
    KdDbStub& stub = m_stubs.emplace_back();
    stub.database = &m_core;
    stub.owner = owner;
    stub.handle = handle;
    stub.ordinal = static_cast<std::uint32_t>(m_stubs.size() - 1);
    stub.kind = kind;
    return stub;
}

KdDbStub& ObjectTable::addStub(ObjectKind kind, std::uint64_t handle, std::uint32_t record,
                               KdDbStub* owner) {
    noteHighestHandle(handle);
    KdDbStub& stub = makeStub(kind, handle, owner);
    stub.record = record;
    return stub;
}

KdDbStub* ObjectTable::findHandle(std::uint64_t handle) {
    return m_handles.find(m_stubs, handle);
}

KdDbStub* ObjectTable::findOrdinal(std::uint32_t ordinal) {
    return ordinal < m_stubs.size() ? &m_stubs[ordinal] : nullptr;
}

void ObjectTable::noteHighestHandle(std::uint64_t handle) {
    m_highestFixed = std::max(m_highestFixed, handle);
    m_highestHandle = std::max(m_highestHandle, handle);
}

std::uint64_t ObjectTable::nextHandle() {
    const HeaderValue* const value = m_core.variables().find("HANDSEED");
    const auto* const seed = value != nullptr ? std::get_if<HeaderHandle>(value) : nullptr;
    // No handle comes after the last one, so a seed that stands there says nothing.
    const bool isUsable = seed != nullptr && seed->value != 0 && seed->value != kLastHandle;
    const std::uint64_t wanted = isUsable ? seed->value : 1;
    if (m_highestHandle < kLastHandle) {
        return std::max(wanted, m_highestHandle + 1);
    }
    // A file that uses the very last handle: take what is free from the seed on.
    std::uint64_t handle = wanted;
    while (findHandle(handle) != nullptr) {
        ++handle;
    }
    return handle;
}

std::uint64_t ObjectTable::takeHandle() {
    const std::uint64_t handle = nextHandle();
    m_core.setVariable("HANDSEED", HeaderHandle{handle == kLastHandle ? kLastHandle : handle + 1});
    m_highestHandle = std::max(m_highestHandle, handle);
    if (!m_core.changes().inCommand()) {
        noteHighestHandle(handle);
    }
    return handle;
}

std::uint64_t ObjectTable::ensureHandle(KdDbStub& stub) {
    if (stub.handle == 0) {
        // What was taken back may come again, with its handle.
        const std::uint64_t reserved = m_core.changes().highestRedoHandle();
        const std::uint64_t next = nextHandle();
        stub.handle = reserved < kLastHandle ? std::max(next, reserved + 1) : next;
        noteHighestHandle(stub.handle);
        m_handles.noteHandle(stub);
    }
    return stub.handle;
}

void ObjectTable::restoreHighestHandle(std::uint64_t handle) {
    m_highestHandle = std::max(handle, m_highestFixed);
}

void ObjectTable::noteRevived(KdDbStub& stub) {
    if (!stub.erased) {
        m_handles.noteHandle(stub);
    }
}

} // namespace orvex
