#pragma once

#include "HandleIndex.h"
#include "KdDbStub.h"
#include "ObjectSource.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <utility>

namespace orvex {

class DatabaseCore;

// All objects of a database by ordinal and handle, where they are read from, and which handles are
// free.
class ObjectTable {
public:
    explicit ObjectTable(DatabaseCore& core) : m_core(core) {}

    // The source lives as long as the database.
    void setSource(std::shared_ptr<ObjectSource> source) { m_source = std::move(source); }
    [[nodiscard]] ObjectSource* source() const { return m_source.get(); }

    // For an object that the file has, so that its handle isn't free.
    KdDbStub& addStub(ObjectKind kind, std::uint64_t handle, std::uint32_t record, KdDbStub* owner);
    // For an object made in memory.
    KdDbStub& makeStub(ObjectKind kind, std::uint64_t handle, KdDbStub* owner);

    [[nodiscard]] std::deque<KdDbStub>& stubs() { return m_stubs; }
    // By handle; the live object where one was erased and its handle given again. Null if none.
    [[nodiscard]] KdDbStub* findHandle(std::uint64_t handle);
    // By entity name; null for a name that isn't this database's. Erased ones are found too.
    [[nodiscard]] KdDbStub* findOrdinal(std::uint32_t ordinal);

    // The next free handle; the seed moves on, as a change that can be undone.
    std::uint64_t takeHandle();
    // The handle of what is going to be written; one that has none gets the next free one. The
    // header's seed stays, so that undo still leads back to it: whoever writes the object writes a
    // seed above its handle.
    std::uint64_t ensureHandle(KdDbStub& stub);
    // A handle that the file has, so that none below is taken for free.
    void noteHighestHandle(std::uint64_t handle);

    // What undo takes back: the handles of objects made in a command are free again after it, but
    // for those that the file has.
    [[nodiscard]] std::uint64_t highestHandle() const { return m_highestHandle; }
    void restoreHighestHandle(std::uint64_t handle);
    // After undo or its reverse: a stub that lives again is found by its handle.
    void noteRevived(KdDbStub& stub);

private:
    [[nodiscard]] std::uint64_t nextHandle();

    DatabaseCore& m_core;
    std::shared_ptr<ObjectSource> m_source;
    std::deque<KdDbStub> m_stubs;
    HandleIndex m_handles;
    std::uint64_t m_highestHandle = 0;
    std::uint64_t m_highestFixed = 0; // of those that undo can't take back
};

} // namespace orvex
