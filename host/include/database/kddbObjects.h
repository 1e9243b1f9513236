#pragma once

#include "KdDbObject.h"
#include "KdDbObjectId.h"

class KdDbDatabase;

// Modes of an open.
constexpr int kForRead = 0;
constexpr int kForWrite = 1;

// Turns an entity name into an id. Always writes `id`: null for the empty name {0,0} and for one
// that is stale, unknown or erased.
Status kddbGetObjectId(KdDbObjectId& id, const long* name);

// The name of an object, {0,0} for a null id. The first word alone distinguishes objects.
Status kddbGetEntityName(long* name, KdDbObjectId id);

// Opens an object that is of `kind` or derived from it. Opens never exclude each other: any number
// may stand at once, reading and writing. On any failure (null id, erased, another kind) `object`
// is written null.
Status kddbOpenAnyObject(KdDbObject*& object, KdDbObjectId id, int mode, const KdRxClass* kind);

template <class T>
Status kddbOpenObject(T*& object, KdDbObjectId id, int mode) {
    KdDbObject* found = nullptr;
    const Status status = kddbOpenAnyObject(found, id, mode, T::desc());
    object = static_cast<T*>(found);
    return status;
}

// Loads a line type from a definition file on the host's support path, given by bare name. When
// the file or the entry is missing, `id` is null and nothing is said.
Status kddbLoadLinetypeFromFile(const wchar_t* file, const wchar_t* name, KdDbObjectId& id,
                                KdDbDatabase* database, int unused);

// The local text of a reserved name: 0 ByLayer, 1 ByBlock, 3 Continuous. Owned by the host, stays
// valid; an unknown number gives an empty text.
const wchar_t* kddbGetReservedString(int number, bool local);
