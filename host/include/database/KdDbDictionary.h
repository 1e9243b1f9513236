#pragma once

#include "KdDbObject.h"

#include <memory>
#include <string>

namespace orvex {
class DatabaseCore;
struct DictionaryContent;
} // namespace orvex

// Walks a dictionary in its order. Made by newIterator, freed by the caller. Entries removed
// meanwhile are passed over.
class KdDbDictionaryIterator {
public:
    virtual ~KdDbDictionaryIterator() = default;
    [[nodiscard]] virtual bool done() const = 0;
    [[nodiscard]] virtual KdDbObjectId objectId() const = 0;
    [[nodiscard]] virtual const wchar_t* name() const = 0;
    virtual bool next() = 0; // true while there is a further entry
};

// Objects by key. Keys are compared without case and kept as typed; the order is the list's.
class KdDbDictionary : public KdDbObject {
public:
    KdDbDictionary();
    ~KdDbDictionary() override;

    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    [[nodiscard]] KdDbDictionaryIterator* newIterator() const; // owned by the caller
    [[nodiscard]] int numEntries() const;
    [[nodiscard]] bool has(const wchar_t* key) const;

    // Writes the key of an entry; an unknown id leaves an empty text and fails.
    Status nameAt(KdDbObjectId id, std::wstring& key) const;
    // An unknown key writes a null id.
    Status getAt(const wchar_t* key, KdDbObjectId& id) const;
    // Puts an object under the key, in place of what stood there, which is erased. An object
    // outside any database becomes this database's, gets a handle, and is left open for write. One
    // of another database is refused, and so is everything by a dictionary outside of them.
    Status setAt(const wchar_t* key, KdDbObject* object, KdDbObjectId& id);
    // Takes the entry out and erases its object.
    Status remove(const wchar_t* key);
    // Id and place stay. A key that another entry has is refused.
    Status setName(const wchar_t* oldKey, const wchar_t* newKey);

    [[nodiscard]] std::shared_ptr<const orvex::ObjectContent> content() const override;
    Status setContent(const std::shared_ptr<const orvex::ObjectContent>& content) override;

    [[nodiscard]] const orvex::DictionaryContent& entries() const { return *m_content; }

private:
    friend class orvex::DatabaseCore;
    orvex::DictionaryContent& change();
    void dropEntry(KdDbObjectId id); // for an object that is erased
    std::shared_ptr<orvex::DictionaryContent> m_content;
};
