#include "BlockList.h"

#include "KdDbBlockTable.h"
#include "textCodec.h"

#include <utility>

namespace orvex {

BlockEntities& BlockList::add(std::wstring name) {
    BlockEntities& block = m_blocks.emplace_back();
    m_blockByName.try_emplace(foldCase(name), &block);
    block.name = std::move(name);
    return block;
}

BlockEntities* BlockList::find(std::wstring_view name) {
    const auto found = m_blockByName.find(foldCase(name));
    return found != m_blockByName.end() ? found->second : nullptr;
}

BlockEntities& BlockList::modelSpace() {
    if (m_modelSpace == nullptr) {
        constexpr std::wstring_view kName = L"*Model_Space";
        BlockEntities* const found = find(kName);
        m_modelSpace = found != nullptr ? found : &add(std::wstring(kName));
    }
    return *m_modelSpace;
}

BlockEntities* BlockList::find(const KdDbStub& record) {
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

BlockEntities& BlockList::blockByOwner(const KdDbStub& entity) {
    BlockEntities* const block = entity.owner != nullptr ? find(*entity.owner) : nullptr;
    return block != nullptr ? *block : modelSpace();
}

BlockEntities* BlockList::blockOf(const KdDbStub& entity) {
    const auto found = m_blockOf.find(&entity);
    return found != m_blockOf.end() ? found->second : &blockByOwner(entity);
}

void BlockList::setBlockOf(const KdDbStub& entity, BlockEntities& block) {
    if (&blockByOwner(entity) == &block) {
        m_blockOf.erase(&entity);
    } else {
        m_blockOf[&entity] = &block;
    }
}

void BlockList::appendEntity(BlockEntities& block, KdDbStub& entity) {
    block.entities.push_back(&entity);
    setBlockOf(entity, block);
}

std::unique_ptr<KdDbObject> BlockList::makeRecord(const KdDbStub& stub) {
    const BlockEntities* const block = find(stub);
    if (block == nullptr) {
        return nullptr;
    }
    auto record = std::make_unique<KdDbBlockTableRecord>();
    record->setName(block->name.c_str());
    return record;
}

} // namespace orvex
