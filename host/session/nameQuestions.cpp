#include "nameQuestions.h"

#include "CStdStr.h"
#include "DatabaseCore.h"
#include "DictionaryContent.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbMlineStyle.h"
#include "Opened.h"
#include "PromptSession.h"
#include "WellKnownObjects.h"
#include "hostText.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
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

// Finds styles as WellKnownObjects does, but searches the dictionary once for all names.
class StyleFinder {
public:
    explicit StyleFinder(const std::vector<DictionaryEntry>& entries) : m_entries(entries) {
        m_names.resize(entries.size());
        for (std::size_t i = 0; i < entries.size(); ++i) {
            m_byKey.emplace(entries[i].key, i);
            const Opened<KdDbMlineStyle> style(entries[i].id, kForRead);
            if (style) {
                m_names[i] = style->name();
                m_byName.emplace(*m_names[i], i);
            }
        }
    }

    // The name by which the style is found that an entry's key finds; nothing where it finds none.
    [[nodiscard]] std::optional<std::wstring> nameFoundBy(const std::wstring& key) const {
        const auto entry = find(key);
        if (!entry) {
            return std::nullopt;
        }
        const auto named = find(*m_names[*entry]);
        const bool isNamed = named && m_entries[*named].id == m_entries[*entry].id;
        return isNamed ? *m_names[*entry] : m_entries[*entry].key;
    }

private:
    struct BeforeWithoutCase {
        bool operator()(const std::wstring& a, const std::wstring& b) const {
            return StrCmpI(a.c_str(), b.c_str()) < 0;
        }
    };
    using Index = std::map<std::wstring, std::size_t, BeforeWithoutCase>; // the first entry each

    // By key, else by the name in the style itself.
    [[nodiscard]] std::optional<std::size_t> find(const std::wstring& name) const {
        if (const auto entry = m_byKey.find(name);
            entry != m_byKey.end() && m_names[entry->second]) {
            return entry->second;
        }
        const auto entry = m_byName.find(name);
        return entry != m_byName.end() ? std::optional(entry->second) : std::nullopt;
    }

    const std::vector<DictionaryEntry>& m_entries;
    std::vector<std::optional<std::wstring>> m_names; // of each entry's style; nothing for no style
    Index m_byKey;
    Index m_byName;
};

} // namespace

std::vector<std::wstring> styleNames(DatabaseCore& core) {
    NameList list;
    const Opened<KdDbDictionary> styles(KdDbObjectId(core.wellKnown().styleDictionary), kForRead);
    if (styles) {
        const StyleFinder finder(styles->entries().entries);
        for (const DictionaryEntry& entry : styles->entries().entries) {
            list.add(finder.nameFoundBy(entry.key).value_or(L""));
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
        text += (i == 0 ? wideHostText("; there are ") : L", ") + names[i];
    }
    return text + (names.size() > kMostListed ? wideHostText(" and others") : L"");
}

void offerNames(std::vector<std::wstring> names) {
    PromptSession::current().completions = std::move(names);
}

} // namespace orvex
