#pragma once

#include "HandleIndex.h"
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
    // Tells databases apart for as long as the process runs.
    [[nodiscard]] std::uint32_t serial() const { return m_serial; }

    // ---- reading a drawing -------------------------------------------------------------------
    // The source lives as long as the database.
    void setSource(std::shared_ptr<ObjectSource> source) { m_source = std::move(source); }
    [[nodiscard]] ObjectSource* source() const { return m_source.get(); }
    KdDbStub& addStub(ObjectKind kind, std::uint64_t handle, std::uint32_t record, KdDbStub* owner);
    // Tells how many stubs are about to be added.
    void reserveStubs(std::size_t count) { m_handles.reserve(count); }

    [[nodiscard]] std::deque<KdDbStub>& stubs() { return m_stubs; }
    // By handle; the live object where one was erased and its handle given again. Null if none.
    [[nodiscard]] KdDbStub* findHandle(std::uint64_t handle);
    // By entity name; null for a name that isn't this database's. Erased ones are found too.
    [[nodiscard]] KdDbStub* findOrdinal(std::uint32_t ordinal);

    // ---- well-known objects, made in memory where the drawing has none ------------------------
    KdDbStub* rootDictionary = nullptr;
    KdDbStub* styleDictionary = nullptr;
    KdDbStub* layerTable = nullptr;
    KdDbStub* linetypeTable = nullptr;
    KdDbStub* blockTable = nullptr;
    // Fills whatever of these is missing, the style STANDARD included. Nothing of it counts as a
    // change: it is written once something that is written refers to it, and has no handle till
    // then.
    void completeDefaults();
    // The three tables, empty where they are missing; no change either.
    void completeTables();
    // The handle of what is going to be written; one that has none gets the next free one. The
    // header's seed stays, so that undo still leads back to it: whoever writes the object writes a
    // seed above its handle.
    std::uint64_t ensureHandle(KdDbStub& stub);

    // By the key in the dictionary of styles, else by the style's own name; ignores case. Null
    // where the entry's object isn't there or is no style.
    [[nodiscard]] KdDbStub* findStyle(std::wstring_view name) const;
    // The name that finds the style again: its own, or its key where that finds another one.
    [[nodiscard]] std::wstring nameOfStyle(KdDbStub& style) const;
    [[nodiscard]] KdDbStub* findLayer(std::wstring_view name) const;
    [[nodiscard]] KdDbStub* findLinetype(std::wstring_view name) const;

    // ---- blocks -------------------------------------------------------------------------------
    [[nodiscard]] std::deque<BlockEntities>& blocks() { return m_blocks; }
    [[nodiscard]] const std::deque<BlockEntities>& blocks() const { return m_blocks; }
    BlockEntities& addBlock(std::wstring name);
    [[nodiscard]] BlockEntities* findBlock(std::wstring_view name); // ignores case; null if none
    [[nodiscard]] BlockEntities& modelSpace();
    [[nodiscard]] BlockEntities* findBlock(const KdDbStub& record);
    // The block an entity stands in; model space where nothing else is known.
    [[nodiscard]] BlockEntities* blockOf(const KdDbStub& entity);
    void setBlockOf(const KdDbStub& entity, BlockEntities& block);

    // ---- objects ------------------------------------------------------------------------------
    // The object in memory, read at the first time; null when it is opaque or unreadable. Opens
    // nothing, so there is nothing to close.
    KdDbObject* load(KdDbStub& stub);
    // The same as an opening; null for an erased one too.
    KdDbObject* open(KdDbStub& stub, bool forWrite);
    void close(KdDbStub& stub);
    void closeAll(); // what a command left open
    // Takes an object over: it gets a handle and a stub. Nothing happens to one that has a stub.
    KdDbStub& adopt(std::unique_ptr<KdDbObject> object, ObjectKind kind, KdDbStub* owner);
    void appendEntity(BlockEntities& block, KdDbStub& entity);
    // An entry of a dictionary is taken out of it, too.
    void erase(KdDbStub& stub);
    // The next free handle; the seed moves on, as a change that can be undone.
    std::uint64_t takeHandle();
    // A handle that the file has, so that none below is taken for free.
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
    // Takes the last step back; false when there is none, and during a command.
    bool undo();
    [[nodiscard]] bool inCommand() const { return m_inCommand; }
    [[nodiscard]] std::size_t undoDepth() const; // steps that can be taken back

    void attach(ChangeFeed& feed);
    void detach(ChangeFeed& feed);

private:
    friend class UndoLog;
    friend class DefaultsBuilder;
    [[nodiscard]] std::uint64_t nextHandle();
    KdDbStub& makeStub(ObjectKind kind, std::uint64_t handle, KdDbStub* owner);
    // All of a block's record that counts is known without its file record.
    [[nodiscard]] std::unique_ptr<KdDbObject> makeBlockRecord(const KdDbStub& stub);
    [[nodiscard]] BlockEntities& blockByOwner(const KdDbStub& entity);
    void tellFeeds(KdDbStub& stub);
    void noteChange(KdDbStub& stub);
    void takeOutOfDictionary(KdDbStub& stub);

    KdDbDatabase* m_owner;
    std::uint32_t m_serial;
    std::shared_ptr<ObjectSource> m_source;
    std::deque<KdDbStub> m_stubs;
    HandleIndex m_handles;
    std::uint64_t m_highestHandle = 0;
    std::uint64_t m_highestFixed = 0; // of those that undo can't take back

    std::deque<BlockEntities> m_blocks;
    std::unordered_map<std::wstring, BlockEntities*> m_blockByName; // names in one case
    std::unordered_map<const KdDbStub*, BlockEntities*> m_blockByRecord;
    BlockEntities* m_modelSpace = nullptr;
    // Only of entities whose owner doesn't tell their block.
    std::unordered_map<const KdDbStub*, BlockEntities*> m_blockOf;

    HeaderVariables m_variables;
    std::vector<KdDbStub*> m_open; // a closed one stays till all behind it are closed
    std::vector<KdDbStub*> m_changed;
    std::vector<ChangeFeed*> m_feeds;
    std::unique_ptr<UndoLog> m_undo;
    bool m_inCommand = false;
    bool m_completing = false; // what is made now comes with every drawing and is no change
};

// What kind of object it is, by its class.
[[nodiscard]] ObjectKind kindOf(const KdDbObject& object);

} // namespace orvex
