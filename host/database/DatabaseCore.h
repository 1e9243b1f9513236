#pragma once

#include "HeaderVariables.h"
#include "KdDbStub.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

class KdDbDatabase;

namespace orvex {

class BlockList;
class ChangeLog;
class ObjectTable;
class WellKnownObjects;

// The host's own view of a database. Its parts have a header each; what concerns several of them
// stands here: an object's life from its first reading to its erasure, and the header's variables.
// No cost of an edit depends on the number of objects.
class DatabaseCore {
public:
    explicit DatabaseCore(KdDbDatabase* owner);
    ~DatabaseCore();
    DatabaseCore(const DatabaseCore&) = delete;
    DatabaseCore& operator=(const DatabaseCore&) = delete;

    [[nodiscard]] KdDbDatabase& database() const { return *m_owner; }
    // Tells databases apart for as long as the process runs.
    [[nodiscard]] std::uint32_t serial() const { return m_serial; }

    // ---- parts ----------------------------------------------------------------------------------
    [[nodiscard]] ObjectTable& objects() const { return *m_objects; }
    [[nodiscard]] BlockList& blocks() const { return *m_blocks; }
    [[nodiscard]] WellKnownObjects& wellKnown() const { return *m_wellKnown; }
    [[nodiscard]] ChangeLog& changes() const { return *m_changes; }

    // ---- objects --------------------------------------------------------------------------------
    // The object in memory, read at the first time; null when it is opaque or unreadable. Opens
    // nothing, so there is nothing to close.
    KdDbObject* load(KdDbStub& stub);
    // The same as an opening; null for an erased one too.
    KdDbObject* open(KdDbStub& stub, bool forWrite);
    void close(KdDbStub& stub);
    void closeAll(); // what a command left open
    // Takes an object over: it gets a handle and a stub. Nothing happens to one that has a stub.
    KdDbStub& adopt(std::unique_ptr<KdDbObject> object, ObjectKind kind, KdDbStub* owner);
    // Called before an object changes: keeps what it was once in a command and tells the feeds.
    void aboutToChange(KdDbStub& stub);
    // An entry of a dictionary is taken out of it, too.
    void erase(KdDbStub& stub);

    // ---- variables ------------------------------------------------------------------------------
    [[nodiscard]] const HeaderVariables& variables() const { return m_variables; }
    void setVariable(std::string_view name, HeaderValue value); // undone like any change
    // As the file or undo has it; no change.
    void loadVariable(std::string_view name, HeaderValue value);
    void removeVariable(std::string_view name);

private:
    void takeOutOfDictionary(KdDbStub& stub);

    KdDbDatabase* m_owner;
    std::uint32_t m_serial;
    HeaderVariables m_variables;
    std::vector<KdDbStub*> m_open; // a closed one stays until all after it are closed
    std::unique_ptr<ObjectTable> m_objects;
    std::unique_ptr<BlockList> m_blocks;
    std::unique_ptr<WellKnownObjects> m_wellKnown;
    std::unique_ptr<ChangeLog> m_changes;
};

// What kind of object it is, by its class.
[[nodiscard]] ObjectKind kindOf(const KdDbObject& object);

} // namespace orvex
