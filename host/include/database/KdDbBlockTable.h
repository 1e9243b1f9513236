#pragma once

#include "KdDbSymbolTable.h"

class KdDbEntity;
class KdDbBlockTableRecord;

// Walks the blocks of a drawing, layouts included; erased ones are skipped. Freed by the caller.
class KdDbBlockTableIterator {
public:
    virtual ~KdDbBlockTableIterator() = default;
    virtual void start() = 0;
    [[nodiscard]] virtual bool done() const = 0;
    virtual void step() = 0;
    // Opens the record; the caller closes it.
    virtual Status getRecord(KdDbBlockTableRecord*& record, int mode) = 0;
};

// Walks the entities of a block in drawing order; erased ones are skipped. Freed by the caller.
class KdDbBlockTableRecordIterator {
public:
    virtual ~KdDbBlockTableRecordIterator() = default;
    virtual void start() = 0;
    [[nodiscard]] virtual bool done() const = 0;
    virtual void step() = 0;
    [[nodiscard]] virtual KdDbObjectId objectId() const = 0;
    // The entity's class, known without opening it; null at the end.
    [[nodiscard]] virtual const KdRxClass* entityClass() const = 0;
    // Opens the entity; the caller closes it.
    virtual Status getEntity(KdDbEntity*& entity, int mode) = 0;
};

class KdDbBlockTable : public KdDbSymbolTable {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    Status newIterator(KdDbBlockTableIterator*& iterator) const;
};

// A block: model space, a layout's paper space, or a definition that inserts refer to.
class KdDbBlockTableRecord : public KdDbSymbolTableRecord {
public:
    static KdRxClass* desc();
    [[nodiscard]] KdRxClass* isA() const override;

    Status newIterator(KdDbBlockTableRecordIterator*& iterator) const;
    // Puts the entity after all others; it gets a handle and lives as long as the drawing.
    Status appendEntity(KdDbObjectId& id, KdDbEntity* entity);
};
