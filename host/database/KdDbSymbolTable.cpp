#include "KdDbSymbolTable.h"

#include "BlockList.h"
#include "DatabaseCore.h"
#include "textCodec.h"

KdRxClass* KdDbSymbolTableRecord::desc() {
    static KdRxClass description(L"KdDbSymbolTableRecord", KdDbObject::desc());
    return &description;
}

KdRxClass* KdDbSymbolTableRecord::isA() const {
    return desc();
}

void KdDbSymbolTableRecord::setName(const wchar_t* name) {
    aboutToChange();
    storeName(name != nullptr ? name : L"");
}

void KdDbSymbolTableRecord::storeName(std::wstring name) {
    m_name = std::move(name);
    const KdDbStub* const owner = ownerId().stub();
    if (owner != nullptr && owner->object != nullptr &&
        owner->object->isKindOf(KdDbSymbolTable::desc())) {
        static_cast<const KdDbSymbolTable&>(*owner->object).forgetNames();
    }
}

KdRxClass* KdDbSymbolTable::desc() {
    static KdRxClass description(L"KdDbSymbolTable", KdDbObject::desc());
    return &description;
}

KdRxClass* KdDbSymbolTable::isA() const {
    return desc();
}

void KdDbSymbolTable::forgetNames() const {
    m_byName.clear();
    m_namesTaken = 0;
}

namespace {

std::wstring foldedName(KdDbObjectId id) {
    const KdDbObject* const object = id.stub()->database->load(*id.stub());
    return object != nullptr && object->isKindOf(KdDbSymbolTableRecord::desc())
               ? orvex::foldCase(static_cast<const KdDbSymbolTableRecord*>(object)->name())
               : std::wstring();
}

} // namespace

KdDbObjectId KdDbSymbolTable::find(const std::wstring& folded, bool erased) const {
    for (; m_namesTaken < m_records.size(); ++m_namesTaken) {
        const KdDbObjectId id = m_records[m_namesTaken];
        const auto [place, isNew] = m_byName.try_emplace(foldedName(id), id);
        if (!isNew && !place->second.isValid()) {
            place->second = id;
        }
    }
    const auto found = m_byName.find(folded);
    if (found == m_byName.end()) {
        return {};
    }
    if (found->second.isValid() || erased) {
        return found->second;
    }
    // The one that was known is erased, or was and has been brought back under another's shadow.
    for (const KdDbObjectId id : m_records) {
        if (id.isValid() && foldedName(id) == folded) {
            found->second = id;
            return id;
        }
    }
    return {};
}

Status KdDbSymbolTable::getAt(const wchar_t* name, KdDbObjectId& id, bool erased) const {
    id = name != nullptr ? find(orvex::foldCase(name), erased) : KdDbObjectId();
    return id.isNull() ? Status::notFound : Status::done;
}

Status KdDbSymbolTable::add(KdDbObjectId& id, KdDbSymbolTableRecord* record) {
    id = KdDbObjectId();
    KdDbStub* const own = objectId().stub();
    if (own == nullptr || record == nullptr || !record->objectId().isNull()) {
        return Status::invalidInput;
    }
    if (!find(orvex::foldCase(record->name()), false).isNull()) {
        return Status::duplicateKey;
    }
    orvex::DatabaseCore& core = *own->database;
    KdDbStub& stub = core.adopt(std::unique_ptr<KdDbObject>(record), orvex::kindOf(*record), own);
    id = KdDbObjectId(&stub);
    noteRecord(id);
    if (stub.kind == orvex::ObjectKind::blockRecord) {
        core.blocks().add(record->name()).record = &stub;
    }
    return Status::done;
}
