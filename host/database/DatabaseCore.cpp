#include "DatabaseCore.h"

#include "BlockList.h"
#include "ChangeLog.h"
#include "KdDbBlockTable.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "ObjectTable.h"
#include "WellKnownObjects.h"
#include "databaseRegistry.h"

#include <limits>

namespace orvex {

DatabaseCore::DatabaseCore(KdDbDatabase* owner)
    : m_owner(owner), m_serial(registerDatabase(*this)),
      m_objects(std::make_unique<ObjectTable>(*this)), m_blocks(std::make_unique<BlockList>()),
      m_wellKnown(std::make_unique<WellKnownObjects>(*this)),
      m_changes(std::make_unique<ChangeLog>(*this)) {}

DatabaseCore::~DatabaseCore() {
    forgetDatabase(m_serial);
}

KdDbObject* DatabaseCore::load(KdDbStub& stub) {
    if (stub.object == nullptr && stub.kind != ObjectKind::opaque) {
        std::unique_ptr<KdDbObject> object;
        if (m_objects->source() != nullptr && stub.record != kNoRecord) {
            object = m_objects->source()->load(stub);
        }
        if (object == nullptr && stub.kind == ObjectKind::blockRecord) {
            object = m_blocks->makeRecord(stub);
        }
        if (object != nullptr) {
            stub.hold(std::move(object));
        }
    }
    return stub.object.get();
}

KdDbObject* DatabaseCore::open(KdDbStub& stub, bool forWrite) {
    if (stub.erased || load(stub) == nullptr) {
        return nullptr;
    }
    if (stub.openForRead == 0 && stub.openForWrite == 0) {
        m_open.push_back(&stub);
    }
    std::uint16_t& count = forWrite ? stub.openForWrite : stub.openForRead;
    if (count < std::numeric_limits<std::uint16_t>::max()) {
        ++count;
    }
    return stub.object.get();
}

void DatabaseCore::close(KdDbStub& stub) {
    if (stub.openForWrite > 0) {
        --stub.openForWrite;
    } else if (stub.openForRead > 0) {
        --stub.openForRead;
    }
    while (!m_open.empty() && m_open.back()->openForRead == 0 && m_open.back()->openForWrite == 0) {
        m_open.pop_back();
    }
}

void DatabaseCore::closeAll() {
    for (KdDbStub* const stub : m_open) {
        stub->openForRead = 0;
        stub->openForWrite = 0;
    }
    m_open.clear();
}

KdDbStub& DatabaseCore::adopt(std::unique_ptr<KdDbObject> object, ObjectKind kind,
                              KdDbStub* owner) {
    if (KdDbStub* const stub = object->objectId().stub()) {
        static_cast<void>(object.release()); // its stub owns it
        return *stub;
    }
    const std::uint64_t handle = m_changes->isPaused() ? 0 : m_objects->takeHandle();
    KdDbStub& stub = m_objects->makeStub(kind, handle, owner);
    stub.hold(std::move(object));
    m_changes->noteMade(stub);
    return stub;
}

void DatabaseCore::erase(KdDbStub& stub) {
    if (stub.erased) {
        return;
    }
    aboutToChange(stub);
    stub.erased = true;
    takeOutOfDictionary(stub);
}

void DatabaseCore::takeOutOfDictionary(KdDbStub& stub) {
    if (stub.owner != nullptr && stub.owner->kind == ObjectKind::dictionary) {
        if (auto* const dictionary = dynamic_cast<KdDbDictionary*>(load(*stub.owner))) {
            dictionary->dropEntry(KdDbObjectId(&stub));
        }
    }
}

void DatabaseCore::aboutToChange(KdDbStub& stub) {
    m_changes->noteChange(stub);
}

void DatabaseCore::setVariable(std::string_view name, HeaderValue value) {
    m_changes->noteVariable(name);
    m_variables.set(name, std::move(value));
}

void DatabaseCore::loadVariable(std::string_view name, HeaderValue value) {
    m_variables.set(name, std::move(value));
}

void DatabaseCore::removeVariable(std::string_view name) {
    m_variables.remove(name);
}

ObjectKind kindOf(const KdDbObject& object) {
    const struct {
        const KdRxClass* description;
        ObjectKind kind;
    } kinds[] = {
        {KdDbMline::desc(), ObjectKind::mline},
        {KdDbEntity::desc(), ObjectKind::entity},
        {KdDbMlineStyle::desc(), ObjectKind::mlineStyle},
        {KdDbDictionary::desc(), ObjectKind::dictionary},
        {KdDbLayerTable::desc(), ObjectKind::layerTable},
        {KdDbLayerTableRecord::desc(), ObjectKind::layer},
        {KdDbLinetypeTable::desc(), ObjectKind::linetypeTable},
        {KdDbLinetypeTableRecord::desc(), ObjectKind::linetype},
        {KdDbBlockTable::desc(), ObjectKind::blockTable},
        {KdDbBlockTableRecord::desc(), ObjectKind::blockRecord},
    };
    for (const auto& each : kinds) {
        if (object.isKindOf(each.description)) {
            return each.kind;
        }
    }
    return ObjectKind::opaque;
}

} // namespace orvex
