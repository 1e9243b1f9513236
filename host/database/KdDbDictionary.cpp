#include "KdDbDictionary.h"

#include "DatabaseCore.h"
#include "DictionaryContent.h"

#include <utility>

KdDbDictionary::KdDbDictionary() : m_content(std::make_shared<orvex::DictionaryContent>()) {}

KdDbDictionary::~KdDbDictionary() = default;

KdRxClass* KdDbDictionary::desc() {
    static KdRxClass description(L"KdDbDictionary", KdDbObject::desc());
    return &description;
}

KdRxClass* KdDbDictionary::isA() const {
    return desc();
}

orvex::DictionaryContent& KdDbDictionary::change() {
    aboutToChange();
    if (m_content.use_count() > 1) {
        m_content = std::make_shared<orvex::DictionaryContent>(*m_content);
    }
    return *m_content;
}

namespace {

// Walks the entries as they were at its making and asks the dictionary whether they are still
// there.
class Iterator final : public KdDbDictionaryIterator {
public:
    Iterator(const KdDbDictionary& dictionary,
             std::shared_ptr<const orvex::DictionaryContent> entries)
        : m_dictionary(dictionary), m_snapshot(std::move(entries)) {
        skipRemoved();
    }

    [[nodiscard]] bool done() const override { return m_index >= m_snapshot->entries.size(); }

    [[nodiscard]] KdDbObjectId objectId() const override {
        return done() ? KdDbObjectId() : m_snapshot->entries[m_index].id;
    }

    [[nodiscard]] const wchar_t* name() const override {
        const auto& now = m_dictionary.entries();
        const std::size_t index = done() ? now.entries.size() : now.find(objectId());
        return index < now.entries.size() ? now.entries[index].key.c_str() : L"";
    }

    bool next() override {
        if (!done()) {
            ++m_index;
            skipRemoved();
        }
        return !done();
    }

private:
    void skipRemoved() {
        const auto& now = m_dictionary.entries();
        while (!done() && &now != m_snapshot.get() && now.find(objectId()) == now.entries.size()) {
            ++m_index;
        }
    }

    const KdDbDictionary& m_dictionary;
    std::shared_ptr<const orvex::DictionaryContent> m_snapshot;
    std::size_t m_index = 0;
};

} // namespace

KdDbDictionaryIterator* KdDbDictionary::newIterator() const {
    return new Iterator(*this, m_content);
}

int KdDbDictionary::numEntries() const {
    return static_cast<int>(m_content->entries.size());
}

bool KdDbDictionary::has(const wchar_t* key) const {
    return key != nullptr && m_content->find(key) < m_content->entries.size();
}

Status KdDbDictionary::nameAt(KdDbObjectId id, std::wstring& key) const {
    key.clear();
    const std::size_t index = m_content->find(id);
    if (id.isNull() || index == m_content->entries.size()) {
        return Status::notFound;
    }
    key = m_content->entries[index].key;
    return Status::done;
}

Status KdDbDictionary::getAt(const wchar_t* key, KdDbObjectId& id) const {
    id = KdDbObjectId();
    if (!has(key)) {
        return Status::notFound;
    }
    id = m_content->entries[m_content->find(key)].id;
    return Status::done;
}

Status KdDbDictionary::setAt(const wchar_t* key, KdDbObject* object, KdDbObjectId& id) {
    id = KdDbObjectId();
    KdDbStub* const own = objectId().stub();
    if (key == nullptr || object == nullptr || own == nullptr) {
        return Status::invalidInput;
    }
    orvex::DatabaseCore& core = *own->database;
    KdDbStub* stub = object->objectId().stub();
    if (stub != nullptr && stub->database != &core) {
        return Status::invalidInput;
    }
    const std::wstring text(key);
    if (stub == nullptr) {
        stub = &core.adopt(std::unique_ptr<KdDbObject>(object), orvex::kindOf(*object), own);
        core.open(*stub, true);
    }
    id = KdDbObjectId(stub);
    const std::size_t index = m_content->find(text.c_str());
    if (index == m_content->entries.size()) {
        change().entries.push_back({text, id});
    } else if (m_content->entries[index].id != id) {
        const KdDbObjectId old = std::exchange(change().entries[index].id, id);
        if (old.isValid()) {
            core.erase(*old.stub());
        }
    }
    return Status::done;
}

Status KdDbDictionary::remove(const wchar_t* key) {
    if (!has(key)) {
        return Status::notFound;
    }
    auto& entries = change().entries;
    const auto place = entries.begin() + static_cast<std::ptrdiff_t>(m_content->find(key));
    const KdDbObjectId id = place->id;
    entries.erase(place);
    if (id.isValid()) {
        id.stub()->database->erase(*id.stub());
    }
    return Status::done;
}

void KdDbDictionary::dropEntry(KdDbObjectId id) {
    if (m_content->find(id) < m_content->entries.size()) {
        std::erase_if(change().entries, [id](const auto& entry) { return entry.id == id; });
    }
}

Status KdDbDictionary::setName(const wchar_t* oldKey, const wchar_t* newKey) {
    if (newKey == nullptr || !has(oldKey)) {
        return Status::notFound;
    }
    const std::size_t index = m_content->find(oldKey);
    const std::size_t other = m_content->find(newKey);
    if (other != index && other < m_content->entries.size()) {
        return Status::duplicateKey;
    }
    std::wstring text(newKey); // may be an entry's own text
    change().entries[index].key = std::move(text);
    return Status::done;
}

std::shared_ptr<const orvex::ObjectContent> KdDbDictionary::content() const {
    return m_content;
}

Status KdDbDictionary::setContent(const std::shared_ptr<const orvex::ObjectContent>& content) {
    const auto typed = std::dynamic_pointer_cast<const orvex::DictionaryContent>(content);
    if (typed == nullptr) {
        return Status::wrongClass;
    }
    aboutToChange();
    // Contents are made as plain values and never written while somebody else holds them too.
    m_content = std::const_pointer_cast<orvex::DictionaryContent>(typed);
    return Status::done;
}
