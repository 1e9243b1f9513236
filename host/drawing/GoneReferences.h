#pragma once

#include "DrawingDocument.h"
#include "FileLayout.h"

#include <cstdint>
#include <map>
#include <unordered_set>
#include <vector>

namespace orvex {

// What names entities that leave the file: groups and tables of drawing order name in their place
// what was made of them, or nothing; a group that is left without members goes, and so does what
// belonged to such an entity alone, its extension dictionary. Costs nothing as long as nothing
// leaves.
class GoneReferences {
public:
    GoneReferences(const DrawingDocument& document, DatabaseCore& core)
        : m_document(document), m_core(core) {}

    // Of an entity that is taken out of the file.
    void note(std::uint32_t record);
    // An entity that stands for one that was noted, after those that do so already. Both stand in
    // the block with this record.
    void noteReplacement(std::uint64_t gone, std::uint64_t replacement, std::uint64_t block);
    // Puts the changes of all records that name what was noted into the layout. Records that
    // can't be read stay and are told.
    void settle(FileLayout& layout, std::vector<DrawingWarning>& warnings);

private:
    enum class Reading : std::uint8_t { unconcerned, edited, unreadable };
    struct Replacements {
        std::uint64_t block = 0;
        std::vector<std::uint64_t> entities; // in drawing order
    };

    void dropOwned(std::uint32_t record, FileLayout& layout);
    void dropDictionary(std::uint64_t handle, std::uint64_t owner, FileLayout& layout);
    [[nodiscard]] Reading settleGroup(std::uint32_t record, FileLayout& layout);
    [[nodiscard]] Reading settleSortTable(std::uint32_t record, FileLayout& layout);
    void dropGroup(std::uint32_t record, FileLayout& layout);
    void dropEntries(FileLayout& layout);
    [[nodiscard]] bool isGone(std::uint64_t handle) const { return m_gone.contains(handle); }
    [[nodiscard]] const std::vector<std::uint64_t>& replacementsOf(std::uint64_t gone) const;

    const DrawingDocument& m_document;
    DatabaseCore& m_core;
    std::vector<std::uint32_t> m_entities;
    std::unordered_set<std::uint64_t> m_gone;
    std::map<std::uint64_t, Replacements> m_replacements; // by what is gone
    // Of dictionaries, by record: the handles that go.
    std::map<std::uint32_t, std::unordered_set<std::uint64_t>> m_entries;
};

} // namespace orvex
