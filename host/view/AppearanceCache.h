#pragma once

#include "Appearance.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

struct KdDbStub;

namespace orvex {

// Appearances that were asked for, in a bounded amount of memory. Two generations: what is used
// goes into the young one; when that is full it becomes the old one, whose appearances are dropped
// unless they are used again. So one found or kept just now always survives. Freeing thousands of
// them at once would hold up a window; what is dropped in bulk is freed step by step as new ones
// come in.
class AppearanceCache {
public:
    explicit AppearanceCache(std::size_t bytes) : m_youngLimit(bytes / 3) {}

    [[nodiscard]] const Appearance* find(const KdDbStub& entity); // null when it isn't here
    const Appearance& keep(const KdDbStub& entity, Appearance&& appearance);
    void drop(const KdDbStub& entity);
    void clear();

    [[nodiscard]] std::size_t size() const { return m_young.size() + m_old.size(); }

private:
    using Generation = std::unordered_map<const KdDbStub*, Appearance>;
    void makeRoom();
    void discard(Generation&& generation);
    void freeSome();

    std::size_t m_youngLimit;
    std::size_t m_youngBytes = 0;
    Generation m_young;
    Generation m_old;
    std::vector<Generation> m_discarded;
};

} // namespace orvex
