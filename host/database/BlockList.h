#pragma once

#include "KdDbStub.h"
#include "KdGePoint3d.h"

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvex {

// A block as the drawing lists it: what stands in it, in drawing order, erased entities included.
struct BlockEntities {
    std::wstring name;          // "*Model_Space", "*Paper_Space", ...
    KdDbStub* record = nullptr; // null when the file has no block record for it
    KdGePoint3d basePoint;
    std::vector<KdDbStub*> entities;
};

// The blocks of a drawing, model and paper space included, and which entity stands in which.
class BlockList {
public:
    [[nodiscard]] std::deque<BlockEntities>& all() { return m_blocks; }
    BlockEntities& add(std::wstring name);
    [[nodiscard]] BlockEntities* find(std::wstring_view name); // ignores case; null if none
    [[nodiscard]] BlockEntities* find(const KdDbStub& record);
    [[nodiscard]] BlockEntities& modelSpace();

    // The block an entity stands in; model space where nothing else is known.
    [[nodiscard]] BlockEntities* blockOf(const KdDbStub& entity);
    void setBlockOf(const KdDbStub& entity, BlockEntities& block);
    void appendEntity(BlockEntities& block, KdDbStub& entity);

    // A fresh object for a block's record, null when no block has that record. All of it that
    // counts is known without the file's record.
    [[nodiscard]] std::unique_ptr<KdDbObject> makeRecord(const KdDbStub& stub);

private:
    [[nodiscard]] BlockEntities& blockByOwner(const KdDbStub& entity);

    std::deque<BlockEntities> m_blocks;
    std::unordered_map<std::wstring, BlockEntities*> m_blockByName; // names in one case
    std::unordered_map<const KdDbStub*, BlockEntities*> m_blockByRecord;
    BlockEntities* m_modelSpace = nullptr;
    // Only of entities whose owner doesn't tell their block.
    std::unordered_map<const KdDbStub*, BlockEntities*> m_blockOf;
};

} // namespace orvex
