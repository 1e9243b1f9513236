#include "WellKnownObjects.h"

#include "CStdStr.h"
#include "DatabaseCore.h"
#include "DictionaryContent.h"
#include "KdDbDictionary.h"
#include "KdDbMlineStyle.h"
#include "KdDbSymbolTable.h"

namespace orvex {

namespace {

const DictionaryContent* entriesOf(KdDbStub* dictionary) {
    const auto* const object =
        dictionary != nullptr
            ? dynamic_cast<const KdDbDictionary*>(dictionary->database->load(*dictionary))
            : nullptr;
    return object != nullptr ? &object->entries() : nullptr;
}

// Null for what is erased, unreadable or no style.
const KdDbMlineStyle* styleAt(KdDbObjectId id) {
    return id.isValid() ? dynamic_cast<const KdDbMlineStyle*>(id.stub()->database->load(*id.stub()))
                        : nullptr;
}

} // namespace

KdDbStub* WellKnownObjects::findStyle(std::wstring_view name) const {
    const DictionaryContent* const styles = entriesOf(styleDictionary);
    if (styles == nullptr) {
        return nullptr;
    }
    const std::wstring text(name);
    const std::size_t index = styles->find(text.c_str());
    if (index < styles->entries.size() && styleAt(styles->entries[index].id) != nullptr) {
        return styles->entries[index].id.stub();
    }
    // Some programs give a style another name than its key.
    for (const DictionaryEntry& entry : styles->entries) {
        const KdDbMlineStyle* const style = styleAt(entry.id);
        if (style != nullptr && StrCmpI(style->name(), text.c_str()) == 0) {
            return entry.id.stub();
        }
    }
    return nullptr;
}

std::wstring WellKnownObjects::nameOfStyle(KdDbStub& style) const {
    const KdDbObjectId id(&style);
    const KdDbMlineStyle* const object = styleAt(id);
    if (object != nullptr && findStyle(object->name()) == &style) {
        return object->name();
    }
    const DictionaryContent* const styles = entriesOf(styleDictionary);
    const std::size_t index = styles != nullptr ? styles->find(id) : 0;
    return styles != nullptr && index < styles->entries.size() ? styles->entries[index].key
                                                               : std::wstring();
}

namespace {

KdDbStub* findRecord(KdDbStub* tableStub, std::wstring_view name) {
    if (tableStub == nullptr) {
        return nullptr;
    }
    KdDbObjectId id;
    if (const auto* const table =
            dynamic_cast<KdDbSymbolTable*>(tableStub->database->load(*tableStub))) {
        table->getAt(std::wstring(name).c_str(), id);
    }
    return id.stub();
}

} // namespace

KdDbStub* WellKnownObjects::findLayer(std::wstring_view name) const {
    return findRecord(layerTable, name);
}

KdDbStub* WellKnownObjects::findLinetype(std::wstring_view name) const {
    return findRecord(linetypeTable, name);
}

} // namespace orvex
