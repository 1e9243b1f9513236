#pragma once

#include "KdDbObject.h"

#include <string>
#include <vector>

// A named record of a symbol table.
class KdDbSymbolTableRecord : public KdDbObject {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    [[nodiscard]] const std::wstring& name() const { return m_name; }
    void setName(const wchar_t* name);

protected:
    std::wstring m_name;
};

// A table of records by name; names are compared without case.
class KdDbSymbolTable : public KdDbObject {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    // A miss writes a null id. `erased` true finds erased records too.
    Status getAt(const wchar_t* name, KdDbObjectId& id, bool erased = false) const;
    // Takes the record over: it gets a handle and lives as long as the drawing.
    Status add(KdDbObjectId& id, KdDbSymbolTableRecord* record);

    // In the order of the file.
    [[nodiscard]] const std::vector<KdDbObjectId>& records() const { return m_records; }
    // Used while a drawing is read.
    void noteRecord(KdDbObjectId id) { m_records.push_back(id); }

private:
    std::vector<KdDbObjectId> m_records;
};
