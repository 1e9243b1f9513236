#pragma once

#include "DictionaryContent.h"
#include "RecordContext.h"
#include "TagText.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvex {

// A pair of a dictionary's record: key under 3, handle under 350 or 360.
struct DictionaryPair {
    std::string_view key;
    std::uint64_t handle = 0;
};

// The pairs of a record in their order. A key without a handle after it is no pair.
[[nodiscard]] std::vector<DictionaryPair> readPairs(std::string_view bytes, const RecordSpan& span);

// The record as it should be for these entries, or nothing when it says the same. Pairs that are
// the same keep their text. All entries have handles by now.
[[nodiscard]] std::optional<std::string>
editDictionary(const RecordContext& context, const RecordSpan& span,
               const std::vector<DictionaryEntry>& entries);

// A record for a dictionary that the file has not had; `owner` 0 for the root.
void writeDictionary(TagText& target, const RecordContext& context,
                     const std::vector<DictionaryEntry>& entries, std::uint64_t handle,
                     std::uint64_t owner);

} // namespace orvex
