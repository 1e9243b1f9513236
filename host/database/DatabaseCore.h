#pragma once

#include "HeaderVariables.h"
#include "KdDbStub.h"
#include "ObjectSource.h"
#include "Status.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class KdDbDatabase;

namespace orvex {

class ChangeFeed;
class UndoLog;

// A block as the drawing lists it: what stands in it, in drawing order, erased entities included.
struct BlockEntities {
    std::wstring name;          // "*Model_Space", "*Paper_Space", ...
    KdDbStub* record = nullptr; // null when the file has no block record for it
    KdGePoint3d basePoint;
    std::vector<KdDbStub*> entities;
};

// The host's own view of a database: stubs, blocks, variables, undo, and who is told of changes.
// No cost of an edit depends on the number of objects.
class DatabaseCore {
public:
    explicit DatabaseCore(KdDbDatabase* owner);
    ~DatabaseCore();
    DatabaseCore(const DatabaseCore&) = delete;
    DatabaseCore& operator=(const DatabaseCore&) = delete;

    [[nodiscard]] KdDbDatabase& database() const { return *m_owner; }

    // ---- reading a drawing -------------------------------------------------------------------
    // The source lives as long as the database.
    void setSource(std::shared_ptr<ObjectSource> source) { m_source = std::move(source); }
    [[nodiscard]] ObjectSource* source() const { return m_source.get(); }
    KdDbStub& addStub(ObjectKind kind, std::uint64_t handle, std::uint32_t record, KdDbStub* owner);
    void reserveStubs(std::size_t count);

    [[nodiscard]] std::deque<KdDbStub>& stubs() { return m_stubs; }
    // By handle; the live object where one was erased and its handle given again. Null if none.
    [[nodiscard]] KdDbStub* findHandle(std::uint64_t handle) const;
    // By entity name; null for a name that isn't this database's. Erased ones are found too.
    [[nodiscard]] KdDbStub* findOrdinal(std::uint32_t ordinal);

    // ---- well-known objects, made in memory where the drawing has none ------------------------
    KdDbStub* rootDictionary = nullptr;
    KdDbStub* styleDictionary = nullptr;
    KdDbStub* layerTable = nullptr;
    KdDbStub* linetypeTable = nullptr;
    KdDbStub* blockTable = nullptr;
    // Fills whatever of these is missing, the style STANDARD included. Nothing of it counts as a
    // change: it is written once something that is written refers to it.
    void completeDefaults();

    [[nodiscard]] KdDbStub* findStyle(std::wstring_view key) const;
    [[nodiscard]] KdDbStub* findLayer(std::wstring_view name) const;
    [[nodiscard]] KdDbStub* findLinetype(std::wstring_view name) const;

    // ---- blocks -------------------------------------------------------------------------------
    [[nodiscard]] std::deque<BlockEntities>& blocks() { return m_blocks; }
    [[nodiscard]] const std::deque<BlockEntities>& blocks() const { return m_blocks; }
    BlockEntities& addBlock(std::wstring name);
    [[nodiscard]] BlockEntities* findBlock(std::wstring_view name); // ignores case; null if none
    [[nodiscard]] BlockEntities& modelSpace();
    // The block an entity stands in; null for what stands in none.
    [[nodiscard]] BlockEntities* blockOf(const KdDbStub& entity);
    void setBlockOf(const KdDbStub& entity, BlockEntities& block);

    // ---- objects ------------------------------------------------------------------------------
    // Reads the object at its first opening; null when it is erased, opaque or unreadable.
    KdDbObject* open(KdDbStub& stub, bool forWrite);
    void close(KdDbStub& stub);
    void closeAll(); // what a command left open
    // Takes an object over: it gets a handle and a stub. Nothing happens to one that has a stub.
    KdDbStub& adopt(std::unique_ptr<KdDbObject> object, ObjectKind kind, KdDbStub* owner);
    void appendEntity(BlockEntities& block, KdDbStub& entity);
    void erase(KdDbStub& stub);
    // The next free handle; the seed moves on.
    std::uint64_t takeHandle();
    void noteHighestHandle(std::uint64_t handle);

    // ---- variables ------------------------------------------------------------------------------
    [[nodiscard]] const HeaderVariables& variables() const { return m_variables; }
    void setVariable(std::string_view name, HeaderValue value); // undone like any change
    void loadVariable(std::string_view name, HeaderValue value) // as read from the file
    {
        m_variables.set(name, std::move(value));
    }

    // ---- changes and undo -------------------------------------------------------------------
    // Called before an object changes: keeps what it was once in a command and tells the feeds.
    void aboutToChange(KdDbStub& stub);
    // Objects that may differ from the file, new ones included, in the order of their first
    // change.
    [[nodiscard]] const std::vector<KdDbStub*>& changedStubs() const { return m_changed; }

    void beginCommand();
    // Closes what is open and makes one undo step of all that changed; false when nothing did.
    bool endCommand();
    // Takes the last step back; false when there is none.
    bool undo();
    [[nodiscard]] bool inCommand() const { return m_inCommand; }
    // True when the drawing differs from what was last saved, as far as steps tell.
    [[nodiscard]] std::size_t undoDepth() const;

    void attach(ChangeFeed& feed);
    void detach(ChangeFeed& feed);

private:
    friend class UndoLog;
    void tellFeeds(KdDbStub& stub);

    KdDbDatabase* m_owner;
    std::shared_ptr<ObjectSource> m_source;
    std::deque<KdDbStub> m_stubs;
    std::deque<BlockEntities> m_blocks;
    std::unordered_map<const KdDbStub*, BlockEntities*> m_blockOf; // all but model space
    HeaderVariables m_variables;
    mutable std::unordered_map<std::uint64_t, KdDbStub*> m_byHandle; // filled at the first look-up
    mutable std::size_t m_handlesIndexed = 0;
    std::uint64_t m_highestHandle = 0;
    std::vector<KdDbStub*> m_open;
    std::vector<KdDbStub*> m_changed;
    std::vector<ChangeFeed*> m_feeds;
    std::unique_ptr<UndoLog> m_undo;
    bool m_inCommand = false;
};

} // namespace orvex
