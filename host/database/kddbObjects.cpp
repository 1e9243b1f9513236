#include "kddbObjects.h"

#include "DatabaseCore.h"
#include "databaseRegistry.h"

Status kddbGetObjectId(KdDbObjectId& id, const long* name) {
    id = KdDbObjectId();
    KdDbStub* const stub = name != nullptr ? orvex::findEntityName(name[0]) : nullptr;
    if (stub == nullptr) {
        return Status::notFound;
    }
    if (stub->erased) {
        return Status::wasErased;
    }
    id = KdDbObjectId(stub);
    return Status::done;
}

Status kddbGetEntityName(long* name, KdDbObjectId id) {
    name[0] = id.isNull() ? 0 : orvex::entityName(*id.stub());
    name[1] = 0;
    return id.isNull() ? Status::nullId : Status::done;
}

Status kddbOpenAnyObject(KdDbObject*& object, KdDbObjectId id, int mode, const KdRxClass* kind) {
    object = nullptr;
    if (id.isNull()) {
        return Status::nullId;
    }
    KdDbStub& stub = *id.stub();
    if (stub.erased) {
        return Status::wasErased;
    }
    const KdDbObject* const found = stub.database->load(stub);
    if (found == nullptr) {
        return Status::notFound;
    }
    if (!found->isKindOf(kind)) {
        return Status::wrongClass;
    }
    object = stub.database->open(stub, mode == kForWrite);
    return Status::done;
}

const wchar_t* kddbGetReservedString(int number, bool /*local*/) {
    switch (number) {
    case 0:
        return L"ByLayer";
    case 1:
        return L"ByBlock";
    case 3:
        return L"Continuous";
    default:
        return L"";
    }
}
