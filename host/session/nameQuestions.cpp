#include "nameQuestions.h"

#include "DatabaseCore.h"
#include "DictionaryContent.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "Opened.h"
#include "PromptSession.h"
#include "WellKnownObjects.h"

#include <algorithm>
#include <cstddef>
#include <unordered_set>
#include <utility>

namespace orvex {

namespace {

constexpr std::size_t kMostListed = 40;

// Names in their order, each once.
class NameList {
public:
    void add(const std::wstring& name) {
        if (!name.empty() && m_seen.insert(name).second) {
            names.push_back(name);
        }
    }

    std::vector<std::wstring> names;

private:
    std::unordered_set<std::wstring> m_seen;
};

} // namespace

std::vector<std::wstring> styleNames(DatabaseCore& core) {
    NameList list;
    const Opened<KdDbDictionary> styles(KdDbObjectId(core.wellKnown().styleDictionary), kForRead);
    if (styles) {
        for (const DictionaryEntry& entry : styles->entries().entries) {
            if (KdDbStub* const style = core.wellKnown().findStyle(entry.key)) {
                list.add(core.wellKnown().nameOfStyle(*style));
            }
        }
    }
    return std::move(list.names);
}

std::vector<std::wstring> layerNames(DatabaseCore& core) {
    NameList list;
    const Opened<KdDbLayerTable> table(core.database().layerTableId(), kForRead);
    if (table) {
        for (const KdDbObjectId id : table->records()) {
            const Opened<KdDbLayerTableRecord> layer(id, kForRead);
            if (layer) {
                list.add(layer->name());
            }
        }
    }
    return std::move(list.names);
}

std::wstring namesThereAre(const std::vector<std::wstring>& names) {
    std::wstring text;
    for (std::size_t i = 0; i < std::min(names.size(), kMostListed); ++i) {
        text += (i == 0 ? L"; there are " : L", ") + names[i];
    }
    return text + (names.size() > kMostListed ? L" and others" : L"");
}

void offerNames(std::vector<std::wstring> names) {
    PromptSession::current().completions = std::move(names);
}

} // namespace orvex
