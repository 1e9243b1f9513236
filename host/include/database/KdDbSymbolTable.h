#pragma once

#include "KdDbObject.h"

#include <string>
#include <unordered_map>
#include <vector>

// A named record of a symbol table.
class KdDbSymbolTableRecord : public KdDbObject {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    [[nodiscard]] const std::wstring& name() const { return m_name; }
    void setName(const wchar_t* name);

protected:
    void storeName(std::wstring name);

private:
    std::wstring m_name;
};

// A table of records by name; names are compared without case.
class KdDbSymbolTable : public KdDbObject {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    // A miss writes a null id. `erased` true finds erased records too.
    Status getAt(const wchar_t* name, KdDbObjectId& id, bool erased = false) const;
    // Takes the record over: it gets a handle and lives as long as the drawing. A name that the
    // table has, or a table outside any database, is refused and the record stays the caller's.
    Status add(KdDbObjectId& id, KdDbSymbolTableRecord* record);

    // In the order of the file.
    [[nodiscard]] const std::vector<KdDbObjectId>& records() const { return m_records; }
    // Used while a drawing is read.
    void noteRecord(KdDbObjectId id) { m_records.push_back(id); }

private:
    friend class KdDbSymbolTableRecord;
    [[nodiscard]] KdDbObjectId find(const std::wstring& folded, bool erased) const;
    void forgetNames() const;

    std::vector<KdDbObjectId> m_records;
    // Names in one case; of records that share a name the first live one. Filled at a look-up.
    mutable std::unordered_map<std::wstring, KdDbObjectId> m_byName;
    mutable std::size_t m_namesTaken = 0;
};
