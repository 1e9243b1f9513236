#include "styleNames.h"

#include "KdDbBlockTable.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "kddbObjects.h"

#include <algorithm>
#include <memory>
#include <unordered_map>

namespace mledit {

namespace {

// Answers for one style after the other whether it has the name. It runs for each multiline of a
// drawing, so each style is opened once.
class NameTest {
public:
    explicit NameTest(const wchar_t* name) : m_name(name) {}

    bool operator()(KdDbObjectId styleId) {
        if (styleId == m_lastId) {
            return m_last;
        }
        const auto [known, isNew] = m_known.try_emplace(styleId, false);
        if (isNew) {
            known->second = isNamed(styleId);
        }
        m_lastId = styleId;
        m_last = known->second;
        return m_last;
    }

private:
    [[nodiscard]] bool isNamed(KdDbObjectId styleId) const {
        KdDbMlineStyle* style = nullptr;
        kddbOpenObject(style, styleId, kForRead);
        if (style == nullptr) {
            return false;
        }
        const bool same = StrCmpI(style->name(), m_name) == 0;
        style->close();
        return same;
    }

    const wchar_t* m_name;
    std::unordered_map<KdDbObjectId, bool> m_known;
    KdDbObjectId m_lastId;
    bool m_last = false; // no multiline without a style counts
};

bool isUsedIn(const KdDbBlockTableRecord& block, NameTest& hasName) {
    KdDbBlockTableRecordIterator* made = nullptr;
    block.newIterator(made);
    const std::unique_ptr<KdDbBlockTableRecordIterator> walk(made);
    if (walk == nullptr) {
        return false;
    }
    const KdRxClass* const mline = KdDbMline::desc();
    for (; !walk->done(); walk->step()) {
        if (walk->entityClass() == mline && hasName(KdDbMline::styleOf(walk->objectId()))) {
            return true;
        }
    }
    return false;
}

bool isLetterOrDigit(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9');
}

template <class Rule>
bool holdsForAll(std::wstring_view name, Rule rule) {
    return !name.empty() && std::all_of(name.begin(), name.end(), rule);
}

} // namespace

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

bool isStyleUsed(const wchar_t* name) {
    const KdDocument* const document = curDoc();
    if (document == nullptr || name == nullptr) {
        return false;
    }
    KdDbBlockTable* blocks = nullptr;
    document->database()->getBlockTable(blocks, kForRead);
    if (blocks == nullptr) {
        return false;
    }
    KdDbBlockTableIterator* made = nullptr;
    blocks->newIterator(made);
    const std::unique_ptr<KdDbBlockTableIterator> walk(made);
    NameTest hasName(name);
    bool used = false;
    for (; walk != nullptr && !walk->done() && !used; walk->step()) {
        KdDbBlockTableRecord* block = nullptr;
        walk->getRecord(block, kForRead);
        if (block != nullptr) {
            used = isUsedIn(*block, hasName);
            block->close();
        }
    }
    blocks->close();
    return used;
}

bool isNameForNewStyle(std::wstring_view name) {
    return holdsForAll(
        name, [](wchar_t c) { return isLetterOrDigit(c) || c == L'$' || c == L'-' || c == L'_'; });
}

bool isNameForRenaming(std::wstring_view name) {
    return holdsForAll(name, isLetterOrDigit);
}

} // namespace mledit
