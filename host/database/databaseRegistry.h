#pragma once

#include <cstdint>

struct KdDbStub;

namespace orvex {

class DatabaseCore;

// All open databases of the process by serial number. A serial is never given twice, so that the
// entity names of a database that is gone find nothing.
std::uint32_t registerDatabase(DatabaseCore& core);
void forgetDatabase(std::uint32_t serial);

// The object of an entity name's first word; erased ones too. Null for what is unknown or stale.
KdDbStub* findEntityName(long word);

// The first word of an object's name: serial, then the object's ordinal from 1.
long entityName(const KdDbStub& stub);

} // namespace orvex
