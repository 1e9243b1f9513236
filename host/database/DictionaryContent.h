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

    [[nodiscard]] bool equals(const ObjectContent& other) const override;
};

} // namespace orvex
