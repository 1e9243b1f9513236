#include "DictionaryContent.h"

#include "CStdStr.h"

#include <algorithm>

namespace orvex {

std::size_t DictionaryContent::find(const wchar_t* key) const {
    const auto found = std::find_if(entries.begin(), entries.end(), [key](const auto& entry) {
        return StrCmpI(entry.key.c_str(), key) == 0;
    });
    return static_cast<std::size_t>(found - entries.begin());
}

std::size_t DictionaryContent::find(KdDbObjectId id) const {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [id](const auto& entry) { return entry.id == id; });
    return static_cast<std::size_t>(found - entries.begin());
}

bool DictionaryContent::equals(const ObjectContent& other) const {
    const auto* const that = dynamic_cast<const DictionaryContent*>(&other);
    return that != nullptr && entries == that->entries;
}

std::size_t DictionaryContent::memoryUse() const {
    std::size_t bytes = sizeof(DictionaryContent) + entries.capacity() * sizeof(DictionaryEntry);
    for (const auto& entry : entries) {
        bytes += entry.key.capacity() * sizeof(wchar_t);
    }
    return bytes;
}

} // namespace orvex
