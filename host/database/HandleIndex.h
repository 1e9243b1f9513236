#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

struct KdDbStub;

namespace orvex {

// Finds stubs by handle. Filled at the first look-up and kept up from there. Files number their
// objects in ascending order and new objects continue it, so nearly all handles fit into one
// sorted array, which takes a third of a hash table's room.
//
// A handle is given again only after the making of its first bearer was undone, so what was made in
// memory and erased makes room for good. Of objects that share a handle in a damaged file the first
// one has it, erased or not: undo leads back to it.
class HandleIndex {
public:
    void reserve(std::size_t count) { m_sorted.reserve(count); }

    // Null when none has the handle.
    [[nodiscard]] KdDbStub* find(std::deque<KdDbStub>& stubs, std::uint64_t handle);
    // To be told when a stub that had no handle was given one.
    void noteHandle(KdDbStub& stub);

private:
    struct Entry {
        std::uint64_t handle;
        KdDbStub* stub;
    };
    void build(std::deque<KdDbStub>& stubs);
    void add(KdDbStub& stub);
    [[nodiscard]] KdDbStub** place(std::uint64_t handle);

    std::vector<Entry> m_sorted;                         // ascending, each handle once
    std::unordered_map<std::uint64_t, KdDbStub*> m_rest; // what came out of order
    std::size_t m_taken = 0;                             // stubs already in
};

} // namespace orvex
