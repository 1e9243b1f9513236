#include "KdRxDictionary.h"

KdRxClass* KdRxDictionary::desc() {
    static KdRxClass description(L"KdRxDictionary", KdRxObject::desc());
    return &description;
}

KdRxClass* KdRxDictionary::isA() const {
    return desc();
}

KdRxDictionary* KdRxDictionary::cast(KdRxObject* object) {
    return object != nullptr && object->isKindOf(desc()) ? static_cast<KdRxDictionary*>(object)
                                                         : nullptr;
}

KdRxObject* KdRxDictionary::at(const wchar_t* key) const {
    const auto found = m_entries.find(key != nullptr ? key : L"");
    return found != m_entries.end() ? found->second.get() : nullptr;
}

void KdRxDictionary::atPut(const wchar_t* key, std::unique_ptr<KdRxObject> object) {
    m_entries[key != nullptr ? key : L""] = std::move(object);
}

KdRxObject* KdRxDictionary::remove(const wchar_t* key) {
    const auto found = m_entries.find(key != nullptr ? key : L"");
    if (found == m_entries.end()) {
        return nullptr;
    }
    KdRxObject* const object = found->second.release();
    m_entries.erase(found);
    return object;
}
