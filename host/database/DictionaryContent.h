#pragma once

#include "KdDbObjectId.h"
#include "ObjectContent.h"

#include <string>
#include <vector>

namespace orvex {

struct DictionaryEntry {
    std::wstring key;
    KdDbObjectId id;

    friend bool operator==(const DictionaryEntry&, const DictionaryEntry&) = default;
};

struct DictionaryContent final : ObjectContent {
    std::vector<DictionaryEntry> entries;

    // Index of the key's entry, or the number of entries when there is none. Ignores case.
    [[nodiscard]] std::size_t find(const wchar_t* key) const;
    [[nodiscard]] std::size_t find(KdDbObjectId id) const;

    [[nodiscard]] bool equals(const ObjectContent& other) const override;
    [[nodiscard]] std::size_t memoryUse() const override;
};

} // namespace orvex
