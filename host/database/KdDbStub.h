#pragma once

#include "KdDbObject.h"

#include <cstdint>
#include <memory>

namespace orvex {

class DatabaseCore;

// What an object of a drawing is to the system.
enum class ObjectKind : std::uint8_t {
    opaque, // kept byte for byte and never opened
    entity, // seen and picked, without a model of its own
    mline,
    mlineStyle,
    dictionary,
    layerTable,
    layer,
    linetypeTable,
    linetype,
    blockTable,
    blockRecord,
};

// Says that an object has no place in the file yet.
constexpr std::uint32_t kNoRecord = 0xFFFFFFFFU;

} // namespace orvex

// One object's place in a database. It stands for the object before it is read, while it is in
// memory and after it was erased, always at one address.
struct KdDbStub {
    orvex::DatabaseCore* database = nullptr;
    std::unique_ptr<KdDbObject> object;      // null until first opened
    KdDbStub* owner = nullptr;               // block record, dictionary or table; null when unknown
    std::uint64_t handle = 0;                // 0 for none
    std::uint32_t ordinal = 0;               // place among the database's stubs
    std::uint32_t record = orvex::kNoRecord; // where the drawing file has it
    orvex::ObjectKind kind = orvex::ObjectKind::opaque;
    bool erased = false;
    bool changed = false;          // may differ from the file; saving looks closer
    std::uint8_t pendingFeeds = 0; // one bit a change feed that has yet to be told
    std::uint16_t openForRead = 0;
    std::uint16_t openForWrite = 0;

    // Ties an object to its place.
    void hold(std::unique_ptr<KdDbObject> newObject) {
        object = std::move(newObject);
        object->m_stub = this;
    }
};
