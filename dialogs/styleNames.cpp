#include "styleNames.h"

#include "KdDbDictionary.h"
#include "kddbObjects.h"

#include <memory>

std::vector<CStdStr<wchar_t>> styleNames(KdDbObjectId dictionaryId) {
    std::vector<CStdStr<wchar_t>> names;
    KdDbDictionary* dictionary = nullptr;
    kddbOpenObject(dictionary, dictionaryId, kForRead);
    if (dictionary == nullptr) {
        return names;
    }
    const std::unique_ptr<KdDbDictionaryIterator> entry(dictionary->newIterator());
    for (; !entry->done(); entry->next()) {
        std::wstring key;
        dictionary->nameAt(entry->objectId(), key);
        names.emplace_back(std::move(key));
    }
    dictionary->close();
    return names;
}

KdDbObjectId styleUnder(KdDbObjectId dictionaryId, const CStdStr<wchar_t>& key) {
    KdDbObjectId id;
    KdDbDictionary* dictionary = nullptr;
    kddbOpenObject(dictionary, dictionaryId, kForRead);
    if (dictionary != nullptr) {
        dictionary->getAt(key, id);
        dictionary->close();
    }
    return id;
}
