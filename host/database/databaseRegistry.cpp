#include "databaseRegistry.h"

#include "DatabaseCore.h"
#include "ObjectTable.h"

#include <unordered_map>

namespace orvex {

namespace {

std::unordered_map<std::uint32_t, DatabaseCore*>& openDatabases() {
    static std::unordered_map<std::uint32_t, DatabaseCore*> databases;
    return databases;
}

constexpr unsigned kOrdinalBits = 32;

} // namespace

std::uint32_t registerDatabase(DatabaseCore& core) {
    static std::uint32_t last = 0;
    openDatabases().emplace(++last, &core);
    return last;
}

void forgetDatabase(std::uint32_t serial) {
    openDatabases().erase(serial);
}

KdDbStub* findEntityName(long word) {
    const auto bits = static_cast<std::uint64_t>(word);
    const auto ordinal = static_cast<std::uint32_t>(bits);
    const auto database = openDatabases().find(static_cast<std::uint32_t>(bits >> kOrdinalBits));
    if (ordinal == 0 || database == openDatabases().end()) {
        return nullptr;
    }
    return database->second->objects().findOrdinal(ordinal - 1);
}

long entityName(const KdDbStub& stub) {
    const std::uint64_t serial = stub.database->serial();
    return static_cast<long>(serial << kOrdinalBits | (std::uint64_t{stub.ordinal} + 1));
}

} // namespace orvex
