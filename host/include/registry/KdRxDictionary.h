#pragma once

#include "KdRxObject.h"

#include <map>
#include <memory>
#include <string>

// Objects of the host by name. It owns what it holds.
class KdRxDictionary : public KdRxObject {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;
    // Null for null and for an object of another class.
    static KdRxDictionary* cast(KdRxObject* object);

    [[nodiscard]] KdRxObject* at(const wchar_t* key) const; // null if absent
    // Replaces and destroys what stood there.
    void atPut(const wchar_t* key, std::unique_ptr<KdRxObject> object);
    // Takes the entry out; the caller owns and destroys the object. Null if absent.
    KdRxObject* remove(const wchar_t* key);

private:
    std::map<std::wstring, std::unique_ptr<KdRxObject>> m_entries;
};
