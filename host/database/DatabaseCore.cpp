#include "DatabaseCore.h"

#include "CStdStr.h"
#include "ChangeFeed.h"
#include "DictionaryContent.h"
#include "KdDbBlockTable.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDbLayerTable.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMline.h"
#include "KdDbMlineStyle.h"
#include "UndoLog.h"
#include "databaseRegistry.h"
#include "textCodec.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace orvex {

namespace {

constexpr auto kLastHandle = std::numeric_limits<std::uint64_t>::max();

} // namespace

DatabaseCore::DatabaseCore(KdDbDatabase* owner)
    : m_owner(owner), m_serial(registerDatabase(*this)), m_undo(std::make_unique<UndoLog>(*this)) {}

DatabaseCore::~DatabaseCore() {
    forgetDatabase(m_serial);
    for (ChangeFeed* const feed : m_feeds) {
        feed->m_core = nullptr;
        feed->m_pending.clear();
    }
}

// ---- stubs and handles --------------------------------------------------------------------------

KdDbStub& DatabaseCore::makeStub(ObjectKind kind, std::uint64_t handle, KdDbStub* owner) {
    KdDbStub& stub = m_stubs.emplace_back();
    stub.database = this;
    stub.owner = owner;
    stub.handle = handle;
    stub.ordinal = static_cast<std::uint32_t>(m_stubs.size() - 1);
    stub.kind = kind;
    return stub;
}

KdDbStub& DatabaseCore::addStub(ObjectKind kind, std::uint64_t handle, std::uint32_t record,
                                KdDbStub* owner) {
    noteHighestHandle(handle);
    KdDbStub& stub = makeStub(kind, handle, owner);
    stub.record = record;
    return stub;
}

KdDbStub* DatabaseCore::findHandle(std::uint64_t handle) {
    return m_handles.find(m_stubs, handle);
}

KdDbStub* DatabaseCore::findOrdinal(std::uint32_t ordinal) {
    return ordinal < m_stubs.size() ? &m_stubs[ordinal] : nullptr;
}

void DatabaseCore::noteHighestHandle(std::uint64_t handle) {
    m_highestFixed = std::max(m_highestFixed, handle);
    m_highestHandle = std::max(m_highestHandle, handle);
}

std::uint64_t DatabaseCore::nextHandle() {
    const HeaderValue* const value = m_variables.find("HANDSEED");
    const auto* const seed = value != nullptr ? std::get_if<HeaderHandle>(value) : nullptr;
    // Behind the last handle comes none, so a seed that stands there says nothing.
    const bool isUsable = seed != nullptr && seed->value != 0 && seed->value != kLastHandle;
    const std::uint64_t wanted = isUsable ? seed->value : 1;
    if (m_highestHandle < kLastHandle) {
        return std::max(wanted, m_highestHandle + 1);
    }
    // A file that uses the very last handle: take what is free from the seed on.
    std::uint64_t handle = wanted;
    while (findHandle(handle) != nullptr) {
        ++handle;
    }
    return handle;
}

std::uint64_t DatabaseCore::takeHandle() {
    const std::uint64_t handle = nextHandle();
    setVariable("HANDSEED", HeaderHandle{handle == kLastHandle ? kLastHandle : handle + 1});
    m_highestHandle = std::max(m_highestHandle, handle);
    if (!m_inCommand) {
        noteHighestHandle(handle);
    }
    return handle;
}

std::uint64_t DatabaseCore::ensureHandle(KdDbStub& stub) {
    if (stub.handle == 0) {
        stub.handle = nextHandle();
        noteHighestHandle(stub.handle);
        m_handles.noteHandle(stub);
    }
    return stub.handle;
}

// ---- well-known objects -------------------------------------------------------------------------

namespace {

const DictionaryContent* entriesOf(KdDbStub* dictionary) {
    const auto* const object =
        dictionary != nullptr
            ? dynamic_cast<const KdDbDictionary*>(dictionary->database->load(*dictionary))
            : nullptr;
    return object != nullptr ? &object->entries() : nullptr;
}

// Null for what is erased, unreadable or no style.
const KdDbMlineStyle* styleAt(KdDbObjectId id) {
    return id.isValid() ? dynamic_cast<const KdDbMlineStyle*>(id.stub()->database->load(*id.stub()))
                        : nullptr;
}

} // namespace

KdDbStub* DatabaseCore::findStyle(std::wstring_view name) const {
    const DictionaryContent* const styles = entriesOf(styleDictionary);
    if (styles == nullptr) {
        return nullptr;
    }
    const std::wstring text(name);
    const std::size_t index = styles->find(text.c_str());
    if (index < styles->entries.size() && styleAt(styles->entries[index].id) != nullptr) {
        return styles->entries[index].id.stub();
    }
    // Some programs give a style another name than its key.
    for (const DictionaryEntry& entry : styles->entries) {
        const KdDbMlineStyle* const style = styleAt(entry.id);
        if (style != nullptr && StrCmpI(style->name(), text.c_str()) == 0) {
            return entry.id.stub();
        }
    }
    return nullptr;
}

std::wstring DatabaseCore::nameOfStyle(KdDbStub& style) const {
    const KdDbObjectId id(&style);
    const KdDbMlineStyle* const object = styleAt(id);
    if (object != nullptr && findStyle(object->name()) == &style) {
        return object->name();
    }
    const DictionaryContent* const styles = entriesOf(styleDictionary);
    const std::size_t index = styles != nullptr ? styles->find(id) : 0;
    return styles != nullptr && index < styles->entries.size() ? styles->entries[index].key
                                                               : std::wstring();
}

namespace {

KdDbStub* findRecord(KdDbStub* tableStub, std::wstring_view name) {
    if (tableStub == nullptr) {
        return nullptr;
    }
    KdDbObjectId id;
    if (const auto* const table =
            dynamic_cast<KdDbSymbolTable*>(tableStub->database->load(*tableStub))) {
        table->getAt(std::wstring(name).c_str(), id);
    }
    return id.stub();
}

} // namespace

KdDbStub* DatabaseCore::findLayer(std::wstring_view name) const {
    return findRecord(layerTable, name);
}

KdDbStub* DatabaseCore::findLinetype(std::wstring_view name) const {
    return findRecord(linetypeTable, name);
}

// ---- blocks -------------------------------------------------------------------------------------

BlockEntities& DatabaseCore::addBlock(std::wstring name) {
    BlockEntities& block = m_blocks.emplace_back();
    m_blockByName.try_emplace(foldCase(name), &block);
    block.name = std::move(name);
    return block;
}

BlockEntities* DatabaseCore::findBlock(std::wstring_view name) {
    const auto found = m_blockByName.find(foldCase(name));
    return found != m_blockByName.end() ? found->second : nullptr;
}

BlockEntities& DatabaseCore::modelSpace() {
    if (m_modelSpace == nullptr) {
        constexpr std::wstring_view kName = L"*Model_Space";
        BlockEntities* const found = findBlock(kName);
        m_modelSpace = found != nullptr ? found : &addBlock(std::wstring(kName));
    }
    return *m_modelSpace;
}

BlockEntities* DatabaseCore::findBlock(const KdDbStub& record) {
    if (const auto found = m_blockByRecord.find(&record); found != m_blockByRecord.end()) {
        return found->second;
    }
    if (record.kind != ObjectKind::blockRecord) {
        return nullptr;
    }
    // Readers set the records of blocks as they meet them.
    for (BlockEntities& block : m_blocks) {
        if (block.record != nullptr) {
            m_blockByRecord.try_emplace(block.record, &block);
        }
    }
    const auto found = m_blockByRecord.find(&record);
    return found != m_blockByRecord.end() ? found->second : nullptr;
}

BlockEntities& DatabaseCore::blockByOwner(const KdDbStub& entity) {
    BlockEntities* const block = entity.owner != nullptr ? findBlock(*entity.owner) : nullptr;
    return block != nullptr ? *block : modelSpace();
}

BlockEntities* DatabaseCore::blockOf(const KdDbStub& entity) {
    const auto found = m_blockOf.find(&entity);
    return found != m_blockOf.end() ? found->second : &blockByOwner(entity);
}

void DatabaseCore::setBlockOf(const KdDbStub& entity, BlockEntities& block) {
    if (&blockByOwner(entity) == &block) {
        m_blockOf.erase(&entity);
    } else {
        m_blockOf[&entity] = &block;
    }
}

void DatabaseCore::appendEntity(BlockEntities& block, KdDbStub& entity) {
    block.entities.push_back(&entity);
    setBlockOf(entity, block);
}

// ---- objects ------------------------------------------------------------------------------------

std::unique_ptr<KdDbObject> DatabaseCore::makeBlockRecord(const KdDbStub& stub) {
    const BlockEntities* const block = findBlock(stub);
    if (block == nullptr) {
        return nullptr;
    }
    auto record = std::make_unique<KdDbBlockTableRecord>();
    record->setName(block->name.c_str());
    return record;
}

KdDbObject* DatabaseCore::load(KdDbStub& stub) {
    if (stub.object == nullptr && stub.kind != ObjectKind::opaque) {
        std::unique_ptr<KdDbObject> object;
        if (m_source != nullptr && stub.record != kNoRecord) {
            object = m_source->load(stub);
        }
        if (object == nullptr && stub.kind == ObjectKind::blockRecord) {
            object = makeBlockRecord(stub);
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
    KdDbStub& stub = makeStub(kind, m_completing ? 0 : takeHandle(), owner);
    stub.hold(std::move(object));
    if (!m_completing) {
        if (m_inCommand) {
            m_undo->keepMade(stub);
        }
        noteChange(stub);
    }
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

// ---- changes and undo ---------------------------------------------------------------------------

void DatabaseCore::setVariable(std::string_view name, HeaderValue value) {
    if (m_inCommand) {
        m_undo->keepVariable(name);
    }
    m_variables.set(name, std::move(value));
}

void DatabaseCore::aboutToChange(KdDbStub& stub) {
    if (m_completing) {
        return;
    }
    if (m_inCommand) {
        m_undo->keep(stub);
    }
    noteChange(stub);
}

void DatabaseCore::noteChange(KdDbStub& stub) {
    if (!stub.changed) {
        stub.changed = true;
        m_changed.push_back(&stub);
    }
    tellFeeds(stub);
}

void DatabaseCore::tellFeeds(KdDbStub& stub) {
    for (ChangeFeed* const feed : m_feeds) {
        if ((stub.pendingFeeds & feed->m_bit) == 0) {
            stub.pendingFeeds = static_cast<std::uint8_t>(stub.pendingFeeds | feed->m_bit);
            feed->m_pending.push_back(&stub);
        }
    }
}

void DatabaseCore::beginCommand() {
    if (!m_inCommand) {
        m_inCommand = true;
        m_undo->begin();
    }
}

bool DatabaseCore::endCommand() {
    closeAll();
    if (!m_inCommand) {
        return false;
    }
    m_inCommand = false;
    return m_undo->end();
}

bool DatabaseCore::undo() {
    if (m_inCommand) {
        return false;
    }
    closeAll();
    return m_undo->undo();
}

std::size_t DatabaseCore::undoDepth() const {
    return m_undo->depth();
}

void DatabaseCore::attach(ChangeFeed& feed) {
    unsigned taken = 0;
    for (const ChangeFeed* const other : m_feeds) {
        taken |= other->m_bit;
    }
    unsigned bit = 1;
    while ((taken & bit) != 0) {
        bit <<= 1U;
    }
    if (bit > std::numeric_limits<std::uint8_t>::max()) {
        throw std::length_error("too many change feeds");
    }
    feed.m_bit = static_cast<std::uint8_t>(bit);
    m_feeds.push_back(&feed);
}

void DatabaseCore::detach(ChangeFeed& feed) {
    static_cast<void>(feed.take());
    std::erase(m_feeds, &feed);
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
